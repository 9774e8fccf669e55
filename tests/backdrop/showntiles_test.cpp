// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/showntiles.h"

#include "tests/backdrop/drawnbackdrop.h"
#include "tests/backdrop/lazywindow.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace morrowleaf {
namespace {

constexpr double worstMean = 0.37;

BackdropState moving(ScreenAnim motion, int palette = 6) {
    BackdropState state = plainState(palette);
    state.screenAnim = motion;
    return state;
}

void expectClose(const LazyWindow& shown, double at, const char* when) {
    const Lag lag = lagAt(shown, at);
    EXPECT_LE(lag.sample, 1) << when << ' ' << at;
    EXPECT_LE(lag.square, worstMean) << when << ' ' << at;
}

// Follows the motion, and returns the instant at the end.
double follow(LazyWindow& shown, double at, int ticks) {
    int next = 1;
    for (int tick = 1; tick <= ticks; ++tick) {
        if (tick >= next) {
            next = tick + shown.tick(at + tick * backdropInterval);
        }
    }
    return at + ticks * backdropInterval;
}

} // namespace

TEST(ShownTiles, KeepEveryMotionWithinTheBound) {
    for (const ScreenAnim motion :
         {ScreenAnim::Drift, ScreenAnim::Aurora, ScreenAnim::Breathe, ScreenAnim::Zoom}) {
        LazyWindow shown(moving(motion), large);
        double at = now + 0.019;
        shown.paintAll(at);
        for (const int ticks : {1, 2, 5, 11, 23, 47, 90}) {
            at = follow(shown, at, ticks);
            expectClose(shown, at, "after some ticks");
        }
    }
}

TEST(ShownTiles, KeepWithinTheBoundWhateverHappens) {
    std::mt19937 random(20011);
    const auto upTo = [&](int most) { return static_cast<int>(random() % (unsigned(most) + 1)); };
    for (const ScreenAnim motion : {ScreenAnim::Aurora, ScreenAnim::Zoom}) {
        LazyWindow shown(moving(motion), large);
        double at = now - 0.007;
        shown.paintAll(at);
        for (int step = 0; step < 30; ++step) {
            switch (upTo(7)) {
            case 0: // the clock is set
                at += (upTo(1) == 0 ? 1 : -1) * (upTo(400) / 7.0);
                break;
            case 1: { // a part is exposed, at the instant of the last tick
                const QPoint corner(upTo(large.width() - 1), upTo(large.height() - 1));
                shown.paint(
                    QRect(corner, QSize(1 + upTo(500), 1 + upTo(200))) & shown.pixels.rect(), at);
                break;
            }
            case 2: { // another size or ratio
                const double ratio = std::array{1.0, 1.25, 1.5, 2.0, 4.0 / 3}[size_t(upTo(4))];
                shown.resize(large + QSize(upTo(90), upTo(90)), ratio);
                shown.paintAll(at);
                break;
            }
            case 3: // another look
                shown.state.palette = Palette::all()[size_t(upTo(8))];
                shown.state.grainOn = upTo(1) == 0;
                shown.state.vignette = upTo(10) / 10.0;
                shown.paintAll(at);
                break;
            default:
                break;
            }
            at += upTo(1) / 1000.0; // timers are late
            const int sleep = shown.tick(at);
            expectClose(shown, at, "in a tick");
            at += (sleep - 1) * backdropInterval;
            expectClose(shown, at, "at the end of the sleep");
            at += backdropInterval;
        }
    }
}

TEST(ShownTiles, PaintAFractionOfTheFrames) {
    struct Most {
        ScreenAnim motion;
        double frames; // frames' worth of pixels in a second
    };
    for (const auto [motion, frames] : {Most{ScreenAnim::Drift, 7}, Most{ScreenAnim::Aurora, 24},
                                        Most{ScreenAnim::Breathe, 4}, Most{ScreenAnim::Zoom, 7}}) {
        LazyWindow shown(moving(motion), large);
        shown.paintAll(now);
        shown.painted = 0;
        follow(shown, now, 300);
        EXPECT_LE(shown.painted / shown.frame() / 10, frames) << int(motion);
        EXPECT_GE(shown.painted / shown.frame() / 10, 0.2) << int(motion);
    }
}

TEST(ShownTiles, DoNotStepTogether) {
    for (const ScreenAnim motion : {ScreenAnim::Drift, ScreenAnim::Breathe, ScreenAnim::Zoom}) {
        LazyWindow shown(moving(motion), {1920, 1080});
        shown.paintAll(now);
        double at = follow(shown, now, 30);
        double most = 0;
        for (int tick = 0; tick < 90; ++tick) {
            shown.painted = 0;
            at += backdropInterval;
            shown.tick(at);
            most = std::max(most, shown.painted / shown.frame());
        }
        EXPECT_LE(most, 0.33) << int(motion);
    }
}

TEST(ShownTiles, SleepAtMostHalfASecond) {
    BackdropState frozen = moving(ScreenAnim::Breathe);
    frozen.transparency = 0.999; // nearly nothing of the mesh is left
    frozen.desktop.kind = DesktopView::Kind::Plain;
    LazyWindow shown(frozen, large);
    shown.paintAll(now);
    double at = now;
    for (int i = 0; i < 8; ++i) {
        const int sleep = shown.tick(at);
        EXPECT_LE(sleep, 15);
        EXPECT_GE(sleep, i == 0 ? 1 : 7); // keys are known for at least one interval
        at += sleep * backdropInterval;
    }
    EXPECT_EQ(shown.painted, shown.frame());
}

TEST(ShownTiles, AskForEverythingUntilItWasPainted) {
    BackdropPainter painter;
    ShownTiles tiles;
    EXPECT_TRUE(tiles.outdated(painter.keys(), now, now + 1).isEmpty()); // nothing has nodes
    QImage image(large, QImage::Format_RGB32);
    painter.paint(image, image.rect(), moving(ScreenAnim::Drift), now);
    EXPECT_EQ(tiles.outdated(painter.keys(), now, now + 1), QRegion(image.rect()));
    tiles.record(image.rect(), painter.keys(), now);
    EXPECT_TRUE(tiles.outdated(painter.keys(), now, now).isEmpty());
    tiles.record(QRect(10, 10, 300, 20), painter.keys(), now);
    EXPECT_EQ(tiles.outdated(painter.keys(), now, now), QRegion(QRect(0, 0, 512, 64)));
    tiles.record(QRect(1100, 10, 3, 3), painter.keys(), now);
    EXPECT_EQ(tiles.outdated(painter.keys(), now, now),
              QRegion(QRect(0, 0, 512, 64)) + QRect(768, 0, 432, 64)); // none is narrow
    tiles.forget();
    EXPECT_EQ(tiles.outdated(painter.keys(), now, now + 1), QRegion(image.rect()));
}

TEST(ShownTiles, EndOnWholePointsAndAreWide) {
    for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        const QSize tile = ShownTiles::tileSize({3840, 2160}, ratio);
        EXPECT_GE(tile.width(), 256) << ratio;
        EXPECT_GE(tile.height(), 64) << ratio;
        EXPECT_LE(tile.width() * tile.height(), 400 * 100) << ratio;
        EXPECT_NEAR(tile.width() / ratio, std::round(tile.width() / ratio), 1e-9) << ratio;
        EXPECT_NEAR(tile.height() / ratio, std::round(tile.height() / ratio), 1e-9) << ratio;
    }
    EXPECT_EQ(ShownTiles::tileSize({800, 600}, 4.0 / 3), QSize(800, 600));
}

} // namespace morrowleaf
