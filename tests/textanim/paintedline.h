// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

// Draws a line at an instant and measures its pixels.

#include "tests/fakes/shippedfonts.h"
#include "textanim/revealline.h"

#include <QPainter>

#include <cmath>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

inline RevealLine::Parts parts(TextAnim style, const QString& text = u"A quiet office, fine"_s,
                               const QString& name = u"fraunces"_s) {
    const TextFont font = quoteFont(shippedFonts(), name, 28);
    return {text, 0, style, font, font, QColor(u"#f3ece0"_s), {0.35, 12, {0, 6}}, 0};
}

inline constexpr QPointF place{90.3, 70.6};

inline QImage painted(const RevealLine& line, double seconds, double ratio = 1) {
    QImage picture(QSize(static_cast<int>(480 * ratio), static_cast<int>(200 * ratio)),
                   QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    line.paint(painter, place, seconds);
    return picture;
}

inline QRectF inkOf(const QImage& picture) {
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* pixels = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            if (pixels[x] != 0) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    const double ratio = picture.devicePixelRatio();
    return {QPointF(ink.topLeft()) / ratio, QSizeF(ink.size()) / ratio};
}

inline double alphaSum(const QImage& picture, const QRect& rect) {
    double sum = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            sum += qAlpha(picture.pixel(x, y));
        }
    }
    return sum;
}

inline double alphaSum(const QImage& picture) {
    return alphaSum(picture, picture.rect());
}

inline double meanDifference(const QImage& one, const QImage& other) {
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        const uchar* a = one.constScanLine(y);
        const uchar* b = other.constScanLine(y);
        for (int i = 0; i < 4 * one.width(); ++i) {
            sum += std::abs(a[i] - b[i]);
        }
    }
    return sum / (4.0 * one.width() * one.height());
}

} // namespace morrowleaf
