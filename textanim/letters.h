// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "textanim/motion.h"
#include "textanim/textoutline.h"

#include <QColor>
#include <QImage>
#include <QRect>

#include <vector>

namespace morrowleaf {

// Draws the letters of a line that is set in type. The pictures that it returns
// share one memory and are valid until the next call.
class Letters {
public:
    // `margin` in points is added around the ink, for what goes beyond the
    // outlines.
    explicit Letters(TextOutline text, double margin = 1);

    const TextOutline& text() const { return text_; }
    // What the letters touch with these effects, in points from the top left of
    // the line's place; empty for a line without ink.
    QRectF rect(const LineEffects& effects) const;

    // The whole line with effects, at a device scale.
    PlacedPicture draw(const LineEffects& effects, double scale, const QColor& color);
    // The first characters of the line at rest.
    PlacedPicture drawBeginning(qint64 characters, double scale, const QColor& color);

    void releaseMemory() { memory_ = {}; }

private:
    QImage paint(const LineEffects& effects, qint64 characters, double scale, int cell, QRect rect,
                 const QColor& color);
    PlacedPicture drawBlurred(const LineEffects& effects, double scale, double sigma,
                              const QColor& color);

    TextOutline text_;
    double margin_;
    std::vector<QRgb> memory_;
};

// The device pixels, up or down, that move the resting baseline onto whole ones.
double baselineShift(const TextOutline& text, double scale);

// The whole pixels that a rectangle in points touches at a device scale.
QRect deviceRect(const QRectF& points, double scale);

// Pictures in `memory`, valid until it is used again. The pixels of the first
// are not initialised.
QImage uninitialisedPicture(QSize size, std::vector<QRgb>& memory);
QImage transparentPicture(QSize size, std::vector<QRgb>& memory);

} // namespace morrowleaf
