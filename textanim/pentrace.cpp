// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/pentrace.h"

#include <QPainter>
#include <QPainterPathStroker>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace morrowleaf {

namespace {

// Curves are flattened at this multiple of their size, so that the straight
// pieces are short enough for every device scale.
constexpr double flatteningScale = 8;

double distance(QPointF from, QPointF to) {
    return std::hypot(to.x() - from.x(), to.y() - from.y());
}

void appendContour(PenTrace& trace, const QPolygonF& contour, double stretchLength) {
    PenStretch stretch{{contour.front()}, trace.length, 0, true};
    for (qsizetype i = 1; i < contour.size(); ++i) {
        const QPointF from = contour[i - 1];
        const double piece = distance(from, contour[i]);
        if (piece <= 0) {
            continue;
        }
        if (stretch.length + piece / 2 > stretchLength) {
            const QPointF middle = (from + contour[i]) / 2;
            stretch.points.append(middle);
            stretch.length += piece / 2;
            trace.length += piece / 2;
            trace.stretches.push_back(stretch);
            stretch = {{middle}, trace.length, 0, false};
            stretch.points.append(contour[i]);
            stretch.length = piece / 2;
            trace.length += piece / 2;
            continue;
        }
        stretch.points.append(contour[i]);
        stretch.length += piece;
        trace.length += piece;
    }
    if (stretch.length > 0) {
        trace.stretches.push_back(stretch);
    }
}

QPainterPath beginning(const PenStretch& stretch, double length, double scale) {
    QPainterPath path(stretch.points.front() * scale);
    double done = 0;
    for (qsizetype i = 1; i < stretch.points.size() && done < length; ++i) {
        const QPointF from = stretch.points[i - 1];
        const double piece = distance(from, stretch.points[i]);
        const double share = std::min((length - done) / piece, 1.0);
        path.lineTo((from + (stretch.points[i] - from) * share) * scale);
        done += piece;
    }
    return path;
}

void addAlpha(QImage& to, const QImage& from, QPoint at) {
    for (int y = 0; y < from.height(); ++y) {
        const auto* source = reinterpret_cast<const QRgb*>(from.constScanLine(y));
        uchar* target = to.scanLine(y + at.y()) + at.x();
        for (int x = 0; x < from.width(); ++x) {
            target[x] = static_cast<uchar>(std::min(target[x] + (source[x] >> 24), 255U));
        }
    }
}

void copyRect(const QImage& from, QImage& to, const QRect& rect) {
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        const uchar* source = from.constScanLine(y) + rect.left();
        std::copy(source, source + rect.width(), to.scanLine(y) + rect.left());
    }
}

} // namespace

PenTrace penTrace(const QPainterPath& outline, double stretchLength) {
    PenTrace trace;
    const auto contours =
        outline.toSubpathPolygons(QTransform::fromScale(flatteningScale, flatteningScale));
    for (const QPolygonF& contour : contours) {
        QPolygonF points;
        points.reserve(contour.size());
        for (const QPointF& point : contour) {
            points.append(point / flatteningScale);
        }
        if (points.size() > 1) {
            appendContour(trace, points, stretchLength);
        }
    }
    return trace;
}

PenDrawing::PenDrawing(double scale, double penWidth, QRect rect, double drop)
    : scale_(scale)
    , penWidth_(penWidth)
    , rect_(rect)
    , drop_(drop)
    , whole_(rect.size(), QImage::Format_Alpha8)
    , current_(rect.size(), QImage::Format_Alpha8) {
    whole_.fill(0);
    current_.fill(0);
}

void PenDrawing::add(const PenStretch& stretch, double length, bool roundTip, QImage& to) const {
    const QPainterPath path = beginning(stretch, length, scale_).translated(0, drop_);
    const double width = penWidth_ * scale_;
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(Qt::FlatCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    QPainterPath stroke = stroker.createStroke(path);
    stroke.setFillRule(Qt::WindingFill);

    const double reach = width / 2 + 2;
    const QRect touched =
        path.boundingRect().adjusted(-reach, -reach, reach, reach).toAlignedRect() & rect_;
    if (touched.isEmpty()) {
        return;
    }
    QImage piece(touched.size(), QImage::Format_ARGB32_Premultiplied);
    piece.fill(Qt::transparent);
    QPainter painter(&piece);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-touched.topLeft());
    painter.fillPath(stroke, Qt::black);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    if (stretch.opensContour) {
        painter.drawEllipse(path.elementAt(0), width / 2, width / 2);
    }
    if (roundTip) {
        painter.drawEllipse(path.currentPosition(), width / 2, width / 2);
    }
    painter.end();
    addAlpha(to, piece, touched.topLeft() - rect_.topLeft());
}

const QImage& PenDrawing::at(const PenTrace& trace, double length) {
    const auto& stretches = trace.stretches;
    const auto begun = std::ranges::find_if(stretches, [length](const PenStretch& stretch) {
        return stretch.begin + stretch.length > length;
    });
    const auto finished = static_cast<std::size_t>(begun - stretches.begin());
    if (finished < finished_) {
        whole_.fill(0);
        current_.fill(0);
        begun_ = {};
        finished_ = 0;
    }
    copyRect(whole_, current_, begun_);
    begun_ = {};
    const auto touched = [this](const PenStretch& stretch) {
        const double reach = penWidth_ * scale_ / 2 + 3;
        const QRectF box(stretch.points.boundingRect().topLeft() * scale_,
                         stretch.points.boundingRect().size() * scale_);
        return (box.adjusted(-reach, -reach, reach, reach).toAlignedRect() & rect_)
            .translated(-rect_.topLeft());
    };
    for (; finished_ < finished; ++finished_) {
        const PenStretch& stretch = stretches[finished_];
        add(stretch, stretch.length, false, whole_);
        copyRect(whole_, current_, touched(stretch));
    }
    if (begun != stretches.end() && length > begun->begin) {
        add(*begun, length - begun->begin, true, current_);
        begun_ = touched(*begun);
    }
    return current_;
}

} // namespace morrowleaf
