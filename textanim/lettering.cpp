// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/lettering.h"

#include "textanim/blurredlayer.h"
#include "textanim/textoutline.h"

#include <QPainter>

#include <cmath>

namespace morrowleaf {

namespace {

// Blur that no eye sees, in pixels.
constexpr double sharpBelow = 0.05;

// From points of the line to points on the screen.
QTransform placing(const TextOutline& text, const RevealValues& values) {
    const QPointF center(text.size.width() / 2, text.size.height() / 2);
    return QTransform::fromTranslate(-center.x(), -center.y()) *
           QTransform::fromScale(values.scale, values.scale) *
           QTransform::fromTranslate(center.x(), center.y() + values.offset);
}

// From points of the line to cells of that many device pixels.
QTransform onDevice(const TextOutline& text, const RevealValues& values, double scale, int cell) {
    return placing(text, values) * QTransform::fromScale(scale, scale) *
           QTransform::fromTranslate(0, baselineShift(text, scale)) *
           QTransform::fromScale(1.0 / cell, 1.0 / cell);
}

} // namespace

double baselineShift(const TextOutline& text, double scale) {
    const double baseline = text.baseline * scale;
    return std::round(baseline) - baseline;
}

TypeLettering::TypeLettering(TextOutline text, double margin)
    : text_(std::move(text))
    , margin_(margin) {}

QRectF TypeLettering::rect(const RevealValues& values) const {
    if (text_.ink.isEmpty()) {
        return {};
    }
    const QRectF ink =
        placing(text_, values).mapRect(text_.ink.adjusted(-margin_, -margin_, margin_, margin_));
    const double halo = 3 * values.blurRadius * values.scale;
    return ink.adjusted(-halo, -halo, halo, halo);
}

PlacedPicture TypeLettering::draw(const RevealValues& values, double scale, const QColor& color) {
    const double sigma = values.blurRadius * values.scale * scale;
    if (sigma > sharpBelow) {
        return drawBlurred(values, scale, sigma, color);
    }
    const QRect area = deviceRect(rect(values), scale);
    PlacedPicture result{paint(values, scale, 1, area, color), area.topLeft()};
    if (values.opacity < 1) {
        QPainter painter(&result.picture);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.fillRect(result.picture.rect(),
                         QColor::fromRgbF(0, 0, 0, static_cast<float>(values.opacity)));
    }
    return result;
}

QImage TypeLettering::paint(const RevealValues& values, double scale, int cell, QRect rect,
                            const QColor& color) {
    QImage picture = transparentPicture(rect.size(), memory_);
    QPainter painter(&picture);
    painter.setTransform(onDevice(text_, values, scale, cell) *
                         QTransform::fromTranslate(-rect.x(), -rect.y()));
    paintTyped(painter, text_, values.typed, color);
    return picture;
}

PlacedPicture TypeLettering::drawBlurred(const RevealValues& values, double scale, double sigma,
                                         const QColor& color) {
    const int cell = BlurredLayer::cellSize(sigma);
    // The sharp letters, drawn small at once.
    RevealValues sharp = values;
    sharp.blurRadius = 0;
    const QRect box = deviceRect(rect(sharp), scale);
    const QPoint corner(static_cast<int>(std::floor(static_cast<double>(box.left()) / cell)),
                        static_cast<int>(std::floor(static_cast<double>(box.top()) / cell)));
    const QSize cells(box.right() / cell - corner.x() + 2, box.bottom() / cell - corner.y() + 2);
    const bool colored = text_.hasPictures;
    const QImage small =
        paint(sharp, scale, cell, {corner, cells}, colored ? color : QColor(Qt::black));
    const BlurredLayer layer(
        small, corner * cell, cell, sigma,
        colored ? std::vector{Channel::Blue, Channel::Green, Channel::Red, Channel::Alpha}
                : std::vector{Channel::Alpha});
    const QRect area = deviceRect(rect(values), scale);
    PlacedPicture result{unpaintedPicture(area.size(), memory_), area.topLeft()};
    layer.paint(color, values.opacity * (colored ? 1 : color.alphaF()), result.picture,
                result.origin);
    return result;
}

} // namespace morrowleaf
