// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Follows each motion of the backdrop for a while, as a window does, and prints how
// much of it is painted, what that costs compared with copying the frame at each of 30
// ticks a second, and how far the window is from a fresh frame at the worst.
// Arguments: seconds of motion (60), ticks between two comparisons (15).

#include "tests/backdrop/lazywindow.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <ctime>

namespace {

using namespace morrowleaf;

constexpr int perSecond = 30; // ticks

double processorTime() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

// Copies a frame; returns seconds of processor time.
double copyingCosts(QImage& to, const QImage& frame) {
    const double start = processorTime();
    std::memcpy(to.bits(), frame.constBits(), static_cast<std::size_t>(frame.sizeInBytes()));
    asm volatile("" : : "r"(to.constBits()) : "memory");
    return processorTime() - start;
}

void follow(const char* name, ScreenAnim motion, const QSize& size, int seconds, int between) {
    BackdropState state;
    state.palette = Palette::all()[6];
    state.screenAnim = motion;
    LazyWindow window(state, size);
    BackdropPainter freshPainter;
    QImage fresh(size, window.pixels.format());
    QImage copy = window.pixels.copy();
    double copying = 0;
    const double start = 8.1e8 + 0.011;
    window.paintAll(start);
    window.painted = 0;
    Lag worst;
    double cost = 0;
    int most = 0; // tiles in one tick, after the first second
    int next = 1;
    for (int tick = 1; tick <= seconds * perSecond; ++tick) {
        const double at = start + tick * backdropInterval;
        copying += copyingCosts(copy, window.pixels);
        if (tick >= next) {
            const double before = processorTime();
            next = tick + window.tick(at);
            cost += processorTime() - before;
            if (tick > perSecond) {
                most = std::max(most, window.lastDue.rectCount());
            }
        }
        if (tick % between == 0) {
            freshPainter.paint(fresh, fresh.rect(), state, at);
            worst.widen(lagOf(window.pixels, fresh));
        }
    }
    std::printf("%-8s %4d x %4d: %5.2f frames' worth and %4.1f ticks (%4.1f wakes, %5.0f "
                "rectangles; at most %d in a tick) a second, %.2f times copying; off by at most %d "
                "in a sample, %.3f in a mean\n",
                name, size.width(), size.height(), window.painted / window.frame() / seconds,
                double(window.ticks) / seconds, double(window.wakes) / seconds,
                double(window.rects) / seconds, most, cost / copying, worst.sample, worst.square);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv) {
    const int seconds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 60;
    const int between = argc > 2 ? std::max(1, std::atoi(argv[2])) : 15;
    for (const QSize size : {QSize(1920, 1080), QSize(3840, 2160)}) {
        follow("drift", ScreenAnim::Drift, size, seconds, between);
        follow("aurora", ScreenAnim::Aurora, size, seconds, between);
        follow("breathe", ScreenAnim::Breathe, size, seconds, between);
        follow("zoom", ScreenAnim::Zoom, size, seconds, between);
    }
    return 0;
}
