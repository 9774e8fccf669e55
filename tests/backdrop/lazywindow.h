// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

// A window without a window system that paints only the tiles that are due, and
// counts its work.

#include "backdrop/backdrop.h"
#include "backdrop/keynodes.h"
#include "backdrop/showntiles.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

namespace morrowleaf {

class LazyWindow {
public:
    LazyWindow(const BackdropState& what, const QSize& size, double ratio = 1)
        : state(what) {
        resize(size, ratio);
    }

    void resize(const QSize& size, double ratio) {
        pixels = QImage(size, QImage::Format_ARGB32_Premultiplied);
        pixels.setDevicePixelRatio(ratio);
        pixels.fill(0x55AA3311);
    }

    void paint(const QRegion& region, double at) {
        for (const QRect& rect : region) {
            painter.paint(pixels, rect, state, at);
            painted += static_cast<double>(rect.width()) * rect.height();
        }
        tiles.record(region, painter.keys(), at);
    }
    void paintAll(double at) { paint(pixels.rect(), at); }

    // Paints what is due at `at`, and returns the number of ticks to sleep.
    int tick(double at) {
        const QRegion due = tiles.outdated(painter.keys(), at, at + backdropInterval * 1.05);
        rects += due.rectCount();
        ticks += due.isEmpty() ? 0 : 1;
        wakes += 1;
        lastDue = due;
        if (!due.isEmpty()) {
            paint(due, at);
        }
        const double wait = tiles.nextDue(painter.keys(), at) - at;
        return std::max(1, static_cast<int>(wait / backdropInterval + 1e-6));
    }

    double frame() const { return static_cast<double>(pixels.width()) * pixels.height(); }

    BackdropState state;
    QImage pixels;
    BackdropPainter painter;
    ShownTiles tiles;
    QRegion lastDue;
    double painted = 0; // pixels
    int rects = 0;
    int ticks = 0; // in which something was painted
    int wakes = 0;
};

// How far a window is from a fresh frame of an instant.
struct Lag {
    int sample = 0;    // the largest difference of a sample, levels
    double square = 0; // the largest difference of the mean of a 40-pixel square, levels

    void widen(const Lag& other) {
        sample = std::max(sample, other.sample);
        square = std::max(square, other.square);
    }
};

inline Lag lagOf(const QImage& shown, const QImage& fresh) {
    constexpr int side = 40;
    const int across = (shown.width() + side - 1) / side;
    Lag lag;
    std::vector<int> sums(static_cast<std::size_t>(across) * 4);
    for (int top = 0; top < shown.height(); top += side) {
        const int bottom = std::min(top + side, shown.height());
        std::fill(sums.begin(), sums.end(), 0);
        for (int y = top; y < bottom; ++y) {
            const quint8* a = shown.constScanLine(y);
            const quint8* b = fresh.constScanLine(y);
            for (int x = 0; x < shown.width(); ++x) {
                int* sum = &sums[static_cast<std::size_t>(x / side) * 4];
                for (int lane = 0; lane < 4; ++lane) {
                    const int gap = a[x * 4 + lane] - b[x * 4 + lane];
                    sum[lane] += gap;
                    lag.sample = std::max(lag.sample, std::abs(gap));
                }
            }
        }
        for (int i = 0; i < across * 4; ++i) {
            const int width = std::min(side, shown.width() - i / 4 * side);
            // The slivers at the edges are too small for a mean of the dither.
            if (width >= side / 2 && bottom - top >= side / 2) {
                lag.square = std::max(lag.square, std::abs(sums[static_cast<std::size_t>(i)]) /
                                                      static_cast<double>(width * (bottom - top)));
            }
        }
    }
    return lag;
}

// How far the window is from what a fresh painter draws for `at`.
inline Lag lagAt(const LazyWindow& window, double at) {
    QImage fresh(window.pixels.size(), window.pixels.format());
    fresh.setDevicePixelRatio(window.pixels.devicePixelRatio());
    BackdropPainter painter;
    painter.paint(fresh, fresh.rect(), window.state, at);
    return lagOf(window.pixels, fresh);
}

} // namespace morrowleaf
