// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/weightmatch.h"

#include <QPolygonF>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace morrowleaf {

namespace {

// The weight that the file gives, in Regular 400 to Bold 700.
std::optional<int> weightOf(const QRawFont& face) {
    const QByteArray table = face.fontTable("OS/2");
    return table.size() < 6 ? std::nullopt
                            : std::optional<int>(qFromBigEndian<quint16>(table.constData() + 4));
}

double area(const QPolygonF& polygon) {
    double twice = 0;
    for (qsizetype i = 0; i < polygon.size(); ++i) {
        const QPointF& next = polygon[(i + 1) % polygon.size()];
        twice += polygon[i].x() * next.y() - next.x() * polygon[i].y();
    }
    return twice / 2;
}

struct Edge {
    QPointF direction; // of length 1
    double length = 0;
};

Edge edgeBetween(QPointF from, QPointF to) {
    const QPointF way = to - from;
    const double length = std::hypot(way.x(), way.y());
    return {way / length, length};
}

// The shift of a corner at which both edges move by `distance` to the right of their
// direction (y downwards: to the left).
QPointF shiftAt(const Edge& in, const Edge& out, double distance) {
    const double turn = QPointF::dotProduct(in.direction, out.direction);
    constexpr double hairpin = -0.94; // has no sensible corner
    if (turn < hairpin) {
        return {};
    }
    const QPointF bisector(in.direction.y() + out.direction.y(),
                           -in.direction.x() - out.direction.x());
    const double most = std::min(in.length, out.length); // a longer shift would turn edges round
    const double shift = distance / (1 + turn);
    return bisector * std::clamp(shift, -most / 2, most / 2);
}

// Moves the points of a closed contour, of which equal neighbours stay together.
void moveContour(std::vector<QPointF>& points, double distance) {
    const std::size_t count = points.size();
    const std::vector<QPointF> old = points;
    for (std::size_t i = 0; i < count; ++i) {
        std::size_t before = (i + count - 1) % count;
        std::size_t after = (i + 1) % count;
        while (old[before] == old[i] && before != i) {
            before = (before + count - 1) % count;
        }
        while (old[after] == old[i] && after != i) {
            after = (after + 1) % count;
        }
        if (before != i && after != i) {
            points[i] += shiftAt(edgeBetween(old[before], old[i]), edgeBetween(old[i], old[after]),
                                 distance);
        }
    }
}

} // namespace

double weightCorrection(const QRawFont& face, const QRawFont& requested) {
    constexpr double edgePerWeight = 0.0045 / 100; // as in common families
    constexpr int most = 200;
    const auto own = weightOf(face);
    const auto wished = weightOf(requested);
    return own && wished ? std::clamp(*wished - *own, -most, most) * edgePerWeight : 0;
}

QPainterPath withMovedEdges(const QPainterPath& outline, double distance) {
    double whole = 0;
    for (const QPolygonF& contour : outline.toSubpathPolygons()) {
        whole += area(contour);
    }
    const double outwards = whole > 0 ? distance : -distance;
    QPainterPath moved = outline;
    for (int begin = 0; begin < outline.elementCount();) {
        int end = begin + 1;
        while (end < outline.elementCount() && !outline.elementAt(end).isMoveTo()) {
            ++end;
        }
        std::vector<QPointF> points;
        for (int i = begin; i < end; ++i) {
            points.emplace_back(outline.elementAt(i));
        }
        moveContour(points, outwards);
        for (int i = begin; i < end; ++i) {
            const QPointF& point = points[static_cast<std::size_t>(i - begin)];
            moved.setElementPositionAt(i, point.x(), point.y());
        }
        begin = end;
    }
    return moved;
}

} // namespace morrowleaf
