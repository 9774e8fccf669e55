// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/screen/sceneforscreens.h"

#include <QImage>
#include <QPainter>

namespace morrowleaf {

inline const QString threeLines =
    u"It is not the mountain we conquer but ourselves, and the path is where we learn to walk."_s;

// Draws the whole view `seconds` after it appeared, over transparent pixels.
inline QImage drawn(const QuoteView& view, double seconds) {
    const QSizeF pixels = view.state().size * view.state().devicePixelRatio;
    QImage image(pixels.toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(view.state().devicePixelRatio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    view.paint(painter, seconds, image.rect());
    return image;
}

// The bounding rectangle (device pixels) of the pixels in a part that are at least as
// green as `least`: those of the light ink, because shadows are black.
inline QRect inkWithin(const QImage& image, const QRect& part, int least = 24) {
    QRect ink;
    const QRect inside = part.intersected(image.rect());
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            if (qGreen(image.pixel(x, y)) >= least) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

} // namespace morrowleaf
