// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>
#include <QRectF>

class QColor;

namespace morrowleaf {

struct TextOutline;

// Pixels with their place on the device relative to the line's origin.
struct PlacedPicture {
    QImage picture; // premultiplied
    QPoint origin;
};

// The letters of one line on their way in, as one style draws them: without
// shadow and without a place on the screen. Seconds count from the end of the
// line's delay; before 0, and for NaN, a line looks as it does at 0. What is
// costly is kept between calls; different lines may be drawn at the same time on
// different threads.
class LinePainter {
public:
    virtual ~LinePainter() = default;
    LinePainter(const LinePainter&) = delete;
    LinePainter& operator=(const LinePainter&) = delete;

    // The line at rest.
    virtual const TextOutline& text() const = 0;
    // The line rests from here on, but for a rounding error of the seconds.
    virtual double duration() const = 0;
    // Whether both instants give the same picture.
    virtual bool looksSame(double one, double other) const = 0;
    // What the letters touch, with the halo of their blur, in points from the
    // top left of the line's place; empty while nothing is visible.
    virtual QRectF rect(double seconds) const = 0;
    // The letters at a device scale. The pixels are valid until the next call.
    virtual PlacedPicture draw(double seconds, double scale, const QColor& color) = 0;
    // Frees everything that is kept, the pixels of the last call too.
    virtual void releaseMemory() = 0;

protected:
    LinePainter() = default;
};

} // namespace morrowleaf
