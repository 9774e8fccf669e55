#pragma once

#include "textanim/motion.h"
#include "textanim/pentrace.h"
#include "textanim/revealline.h"
#include "textanim/textoutline.h"

#include <QImage>
#include <QRect>

#include <optional>
#include <vector>

namespace morrowleaf {

// How far a line has come; equal stages look alike.
struct LineStage {
    RevealValues values;
    qint64 typed = 0; // characters

    bool operator==(const LineStage&) const = default;
};

// What a line is made of, whichever way it comes in.
struct LineShapes {
    TextOutline text;
    PenTrace trace; // of a handwritten line
    double penWidth = 0;
};

// What a line touches at a stage, in points from the top left of its place:
// its letters with their blur, and with the shadow.
QRectF letterRect(const LineShapes& line, const LineStage& stage);
QRectF lineRect(const LineShapes& line, const LineStage& stage, const LineShadow& shadow);

// Pixels with their place relative to the line's origin on the device.
struct PlacedPicture {
    QImage picture; // premultiplied
    QPoint origin;
};

// What the caller keeps for a line between its frames: memory for the pixels
// and what the pen has drawn.
struct LineCanvas {
    std::vector<QRgb> letters;
    std::vector<QRgb> frame;
    std::optional<PenDrawing> pen;
    std::vector<QRgb> ink; // of the line that the pen is at
};

// Letters and shadow at a stage, at a device scale. The pixels live in the
// canvas until the next call.
PlacedPicture lineFrame(const LineShapes& line, const LineStage& stage, double scale,
                        const QColor& color, const LineShadow& shadow, LineCanvas& canvas);

} // namespace morrowleaf
