// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPainterPath>
#include <QPolygonF>
#include <QRectF>

#include <vector>

namespace morrowleaf {

// A part of a contour as a polyline. Contours are cut in the middle of a straight
// piece, so that neighbouring parts meet without gap or overlap.
struct PenStretch {
    QPolygonF points;
    double begin = 0; // the length of the trace before this part, points
    double length = 0;
    bool opensContour = false;
};

// The path of a pen along all contours of an outline, one after another.
struct PenTrace {
    std::vector<PenStretch> stretches;
    double length = 0;
};

// Makes the trace of an outline in points; each contour is cut into parts of
// about `stretchLength` points.
PenTrace penTrace(const QPainterPath& outline, double stretchLength);

// What the pen has drawn, at a device scale. Drawing further adds only the new
// part; going back starts again. The picture depends only on the length.
class PenDrawing {
public:
    // `scale` is in device pixels per point, `penWidth` in points. `rect` is the
    // area of the picture, in device pixels relative to the line's origin; the
    // outline is drawn `drop` pixels lower.
    PenDrawing(double scale, double penWidth, QRect rect, double drop);

    // The coverage (Format_Alpha8) of the first `length` points of the trace.
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
    QImage current_; // the same, plus the stretch that is being drawn
    QRect begun_;    // where the two differ
};

} // namespace morrowleaf
