// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "textanim/motion.h"
#include "textanim/textoutline.h"

#include <QColor>
#include <QImage>
#include <QRect>

#include <optional>
#include <vector>

class QPainter;

namespace morrowleaf {

// Draws the letters of a line of type. The pictures that it returns share one
// buffer: each is valid until the next call.
class Letters {
public:
    // `margin` in points is added around the ink, for what is drawn beyond the outlines.
    explicit Letters(LateOutline text, double margin = 1);

    LateOutline& text() { return text_; }
    qsizetype characterCount() const { return text_.characterCount(); }
    const TextOutline& outline() { return text_.whole(); }
    // The rectangle that the letters touch with these effects, in points from the
    // top left of the line; empty for a line without ink.
    QRectF rect(const LineEffects& effects);

    // Draws the whole line with effects; `scale` is in device pixels per point.
    PlacedPicture draw(const LineEffects& effects, double scale, const QColor& color);
    // Draws the first `characters` characters of the line at rest.
    PlacedPicture drawBeginning(qint64 characters, double scale, const QColor& color);

    void releaseMemory();

private:
    // Whether its outlines and pictures are too many to be drawn in every frame.
    bool isIntricate();

    // The first characters at rest, for an intricate text.
    struct Filled {
        double scale = 0;
        QColor color;
        std::size_t parts = 0;
        PlacedPicture picture;
    };
    const PlacedPicture& filled(qint64 characters, double scale, const QColor& color);
    void paintFilled(QPainter& painter, const LineEffects& effects, qint64 characters, double scale,
                     int cell, const QColor& color);
    QImage paint(const LineEffects& effects, qint64 characters, double scale, int cell, QRect rect,
                 const QColor& color);
    PlacedPicture drawBlurred(const LineEffects& effects, double scale, double sigma,
                              const QColor& color);

    LateOutline text_;
    double margin_;
    std::vector<QRgb> memory_;
    std::optional<Filled> filled_;
    ReducedPictures pictures_;
};

// The vertical shift, in device pixels, that moves the resting baseline to a whole pixel.
double baselineShift(const TextOutline& text, double scale);

// The whole pixels that a rectangle in points touches at a device scale.
QRect deviceRect(const QRectF& points, double scale);

// Premultiplied pictures in `memory`, which is resized for them; they are valid
// until it is used again. The pixels of the first are not initialised.
QImage uninitialisedPicture(QSize size, std::vector<QRgb>& memory);
QImage transparentPicture(QSize size, std::vector<QRgb>& memory);

} // namespace morrowleaf
