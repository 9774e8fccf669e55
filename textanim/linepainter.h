// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>
#include <QRectF>

class QColor;

namespace morrowleaf {

class LateOutline;

// A picture and its position, in device pixels relative to the line's origin.
struct PlacedPicture {
    QImage picture; // premultiplied
    QPoint origin;
};

// Draws the letters of one line during its entrance in one style, without shadow
// and independently of the line's position on the screen. Seconds count from the
// end of the line's delay and must be finite; negative ones count as 0. What is
// costly is kept between calls. Different lines may be drawn at the same time on
// different threads.
class LinePainter {
public:
    virtual ~LinePainter() = default;
    LinePainter(const LinePainter&) = delete;
    LinePainter& operator=(const LinePainter&) = delete;

    // The line at rest. Drawing it, and its rect() unless it is empty, read the outline;
    // before, call one of them on the main thread.
    virtual LateOutline& text() = 0;
    // The seconds after which the line is at rest, apart from a rounding error.
    virtual double duration() const = 0;
    // Whether both instants give the same picture.
    virtual bool looksSame(double one, double other) const = 0;
    // The rectangle that the letters and the halo of their blur touch, in points
    // from the top left of the line; empty while nothing is visible.
    virtual QRectF rect(double seconds) = 0;
    // Draws the letters; `scale` is in device pixels per point. The pixels are
    // valid until the next call.
    virtual PlacedPicture draw(double seconds, double scale, const QColor& color) = 0;
    // Frees everything that is kept, including the pixels of the last call.
    virtual void releaseMemory() = 0;

protected:
    LinePainter() = default;
};

} // namespace morrowleaf
