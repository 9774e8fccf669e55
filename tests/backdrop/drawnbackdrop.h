// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

// Draws backdrops of every kind at an instant.

#include "backdrop/backdrop.h"
#include "backdrop/glass.h"

#include <cmath>

namespace morrowleaf {

inline constexpr double now = 8.1e8; // seconds since 2001
inline const QSize small(480, 300);
inline const QSize large(1200, 800); // the smallest with cells of 8 pixels

inline BackdropState plainState(int palette = 1) {
    BackdropState state;
    state.palette = Palette::all()[static_cast<std::size_t>(palette)];
    return state;
}

inline QImage busy(const QSize& size) {
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            picture.setPixel(x, y, (x / 12 + y / 12) % 2 ? qRgb(250, 240, 20) : qRgb(10, 60, 220));
        }
    }
    return picture;
}

inline BackdropState captured(double transparency, bool withGlass) {
    BackdropState state = plainState(0);
    state.transparency = transparency;
    state.desktop.kind = DesktopView::Kind::Captured;
    state.desktop.picture = busy(small);
    if (withGlass) {
        state.desktop.glass = makeGlass(state.desktop.picture, 1);
    }
    return state;
}

inline QImage drawn(const BackdropState& state, double at = now, const QSize& size = small,
                    double ratio = 1) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(0x55AA3311);
    BackdropPainter painter;
    painter.paint(image, image.rect(), state, at);
    return image;
}

inline QRgb raw(const QImage& image, int x, int y) {
    return reinterpret_cast<const QRgb*>(image.constScanLine(y))[x];
}

inline double meanDifference(const QImage& a, const QImage& b) {
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = raw(a, x, y);
            const QRgb q = raw(b, x, y);
            sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) +
                   std::abs(qBlue(p) - qBlue(q));
        }
    }
    return sum / 3 / a.width() / a.height();
}

} // namespace morrowleaf
