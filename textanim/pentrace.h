// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPainterPath>
#include <QPolygonF>
#include <QRectF>

#include <vector>

namespace morrowleaf {

// A stretch of a contour as straight pieces. Contours are cut in the middle of a
// piece, so that neighbours meet without gap or overlap.
struct PenStretch {
    QPolygonF points;
    double begin = 0; // the length of the trace before it, points
    double length = 0;
    bool opensContour = false;
};

// The path of a pen along all contours of an outline, one after another.
struct PenTrace {
    std::vector<PenStretch> stretches;
    double length = 0;
};

// `stretchLength` is the length, in points, at which a contour is cut.
PenTrace penTrace(const QPainterPath& outline, double stretchLength);

// What the pen has drawn, at a device scale. A longer trace adds only what is
// new; a shorter one starts over. The picture depends on the length alone.
class PenDrawing {
public:
    // `rect` in device pixels relative to the origin of the outline, which
    // lies `drop` pixels lower.
    PenDrawing(double scale, double penWidth, QRect rect, double drop);

    // Coverage (alpha) of the first `length` points of the trace.
    const QImage& at(const PenTrace& trace, double length);

    double scale() const { return scale_; }
    QRect rect() const { return rect_; }

private:
    void add(const PenStretch& stretch, double length, bool roundTip, QImage& to) const;

    double scale_;
    double penWidth_;
    QRect rect_;
    double drop_;
    std::size_t finished_ = 0;
    QImage whole_;   // the finished stretches
    QImage current_; // and what the pen is at
    QRect begun_;    // where both differ
};

} // namespace morrowleaf
