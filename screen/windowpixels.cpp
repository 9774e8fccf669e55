// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/windowpixels.h"

#include <QPainter>
#include <QRegion>
#include <QWidget>

#include <cmath>

namespace morrowleaf {

namespace {

bool isPlain32Bit(const QImage& image) {
    return image.format() == QImage::Format_ARGB32_Premultiplied ||
           image.format() == QImage::Format_RGB32;
}

} // namespace

WindowPixels::WindowPixels(const QWidget& widget, QPaintDevice* device, QPoint origin) {
    const double ratio = device ? device->devicePixelRatioF() : widget.devicePixelRatioF();
    const QSize wanted(static_cast<int>(std::ceil(widget.width() * ratio)),
                       static_cast<int>(std::ceil(widget.height() * ratio)));
    if (device && device->devType() == QInternal::Image) {
        auto& whole = static_cast<QImage&>(*device);
        const QPoint corner(static_cast<int>(std::lround(origin.x() * ratio)),
                            static_cast<int>(std::lround(origin.y() * ratio)));
        const QRect own = QRect(corner, wanted).intersected(whole.rect());
        if (isPlain32Bit(whole) && own.topLeft() == corner && !own.isEmpty()) {
            uchar* first = whole.scanLine(corner.y()) + ptrdiff_t{4} * corner.x();
            image_ = QImage(first, own.width(), own.height(), whole.bytesPerLine(),
                            QImage::Format_ARGB32_Premultiplied);
            direct_ = true;
        }
    }
    if (!direct_) {
        image_ = QImage(wanted, QImage::Format_ARGB32_Premultiplied);
        image_.fill(Qt::transparent);
    }
    image_.setDevicePixelRatio(ratio);
}

void WindowPixels::finish(QWidget& widget, const QRegion& region) const {
    if (direct_) {
        return;
    }
    QPainter painter(&widget);
    painter.setClipRegion(region);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(QPoint(0, 0), image_);
}

QRect devicePixels(const QRectF& points, double devicePixelRatio) {
    return QRectF(points.topLeft() * devicePixelRatio, points.size() * devicePixelRatio)
        .toAlignedRect();
}

QRegion onWholePixels(const QRegion& region, double devicePixelRatio) {
    if (devicePixelRatio == std::floor(devicePixelRatio)) {
        return region;
    }
    constexpr int step = 20; // points, a whole number of pixels at every multiple of 0.05
    QRegion wider;
    for (const QRect& rect : region) {
        const int left = rect.left() / step * step;
        const int top = rect.top() / step * step;
        wider += QRect(QPoint(left, top), QPoint((rect.right() / step + 1) * step - 1,
                                                 (rect.bottom() / step + 1) * step - 1));
    }
    return wider;
}

QRegion inPoints(const QRegion& pixels, double devicePixelRatio) {
    if (devicePixelRatio == 1) {
        return pixels;
    }
    QRegion points;
    for (const QRect& rect : pixels) {
        points += QRectF(QPointF(rect.topLeft()) / devicePixelRatio,
                         QSizeF(rect.size()) / devicePixelRatio)
                      .toAlignedRect();
    }
    return points;
}

} // namespace morrowleaf
