// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/backdrop.h"
#include "backdrop/vignette.h"
#include "tests/backdrop/backdropreference.h"
#include "tests/backdrop/drawnbackdrop.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace morrowleaf {
namespace {

TEST(Backdrop, DrawsTheMeshOfTheInstantWithItsAnimation) {
    for (const ScreenAnim animation : allScreenAnims) {
        for (const double ratio : {1.0, 1.5}) {
            BackdropState state = plainState(3);
            state.screenAnim = animation;
            Reference wanted;
            const double phase = now * speed(animation);
            wanted.points = meshDrift(phase, amplitude(animation));
            wanted.scale = backdropScale(animation, phase);
            wanted.colors = state.palette.colors;
            wanted.vignette = 0.55;
            wanted.size = small;
            wanted.ratio = ratio;
            const std::vector<QRgb> pixels = wanted.draw();
            const QImage image = drawn(state, now, small, ratio);
            int worst = 0;
            for (int y = 0; y < small.height(); ++y) {
                for (int x = 0; x < small.width(); ++x) {
                    const QRgb want = pixels[static_cast<std::size_t>(y * small.width() + x)];
                    worst = std::max({worst, std::abs(qRed(raw(image, x, y)) - qRed(want)),
                                      std::abs(qBlue(raw(image, x, y)) - qBlue(want))});
                    ASSERT_EQ(qAlpha(raw(image, x, y)), 255);
                }
            }
            EXPECT_LE(worst, 2) << int(animation);
        }
    }
}

TEST(Backdrop, MovesUnlessStillPausedOrBehindAPhoto) {
    BackdropState state = plainState();
    EXPECT_TRUE(BackdropPainter::moves(state));
    EXPECT_NE(drawn(state), drawn(state, now + 60));
    state.screenAnim = ScreenAnim::Still;
    EXPECT_FALSE(BackdropPainter::moves(state));
    EXPECT_EQ(drawn(state), drawn(state, now + 60));
    state.screenAnim = ScreenAnim::Drift;
    state.animated = false;
    EXPECT_FALSE(BackdropPainter::moves(state));
    state.animated = true;
    state.hasPhoto = true;
    EXPECT_FALSE(BackdropPainter::moves(state));
}

TEST(Backdrop, AFreshAndAUsedPainterDrawTheSame) {
    BackdropPainter used;
    QImage image(small, QImage::Format_ARGB32_Premultiplied);
    BackdropState state = plainState();
    state.screenAnim = ScreenAnim::Aurora;
    for (int frame = 0; frame < 8; ++frame) {
        used.paint(image, image.rect(), state, now - 1 + frame / 8.0);
    }
    used.paint(image, image.rect(), state, now);
    EXPECT_EQ(image, drawn(state));
}

TEST(Backdrop, CachesFollowEveryChangeOfTheState) {
    BackdropPainter used;
    QImage image(small, QImage::Format_ARGB32_Premultiplied);
    const auto expectFresh = [&](const BackdropState& state, double at) {
        used.paint(image, image.rect(), state, at);
        EXPECT_EQ(image, drawn(state, at));
    };
    BackdropState state = captured(0.3, true);
    expectFresh(state, now);
    state.vignette = 0.2;
    expectFresh(state, now);
    state.grainOn = false;
    expectFresh(state, now);
    state.transparency = 0.4;
    expectFresh(state, now);
    state.desktop.glassOpacity = 0.5;
    expectFresh(state, now);
    state.desktop.picture.fill(Qt::red);
    state.desktop.glass = makeGlass(state.desktop.picture, 1);
    expectFresh(state, now);
    state.palette = Palette::all()[5];
    expectFresh(state, now);
    state.screenAnim = ScreenAnim::Breathe;
    expectFresh(state, now);
    expectFresh(state, now + 1);
}

TEST(Backdrop, AClippedRepaintChangesNothing) {
    const BackdropState state = captured(0.7, true);
    QImage image = drawn(state);
    const QImage before = image.copy();
    BackdropPainter painter;
    for (const QRect clip :
         {QRect(3, 5, 77, 31), QRect(400, 200, 500, 500), QRect(-5, -5, 9, 9), QRect(0, 0, 0, 0)}) {
        painter.paint(image, clip, state, now);
    }
    EXPECT_EQ(image, before);
}

TEST(Backdrop, AClippedRepaintOfGlassGivesTheSamePixelsAndTouchesNoOthers) {
    for (const double transparency : {0.3, 0.8}) {
        const BackdropState state = captured(transparency, true);
        const QImage whole = drawn(state);
        for (const QRect clip : {QRect(0, 0, 20, 300), QRect(30, 100, 100, 9),
                                 QRect(400, 60, 80, 240), QRect(60, 60, 360, 180)}) {
            QImage image(small, QImage::Format_ARGB32_Premultiplied);
            image.fill(0x55AA3311);
            BackdropPainter painter;
            painter.paint(image, clip, state, now);
            EXPECT_EQ(image.copy(clip), whole.copy(clip));
            image = drawn(state);
            painter.paint(image, clip, state, now);
            EXPECT_EQ(image, whole);
        }
    }
}

TEST(Backdrop, ALightPaletteTakesAFaintVignette) {
    BackdropState state = plainState(7);
    ASSERT_TRUE(state.palette.light);
    state.vignette = 1;
    EXPECT_DOUBLE_EQ(vignetteStrength(state), 0.22);
    state.hasPhoto = true;
    EXPECT_DOUBLE_EQ(vignetteStrength(state), 1);
    EXPECT_DOUBLE_EQ(vignetteStrength(plainState()), 0.55);

    BackdropState dark = plainState();
    dark.vignette = 1;
    dark.grainOn = false;
    const QImage wide = drawn(dark, now, {2800, 600});
    EXPECT_EQ(raw(wide, 2, 300), 0xFF000000U); // beyond 1200 points
    EXPECT_EQ(raw(wide, 1400 + 250, 300), raw(drawn(
                                                  [&] {
                                                      BackdropState bare = dark;
                                                      bare.vignette = 0;
                                                      return bare;
                                                  }(),
                                                  now, {2800, 600}),
                                              1400 + 250, 300)); // within 260
}

TEST(Backdrop, SettingsOutsideTheirRangesAreHarmless) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double wild : {nan, infinity, -infinity, -7.0, 1e300}) {
        BackdropState state = captured(wild, true);
        state.vignette = wild;
        state.photoOpacity = wild;
        state.desktop.glassOpacity = wild;
        const QImage image = drawn(state, wild, {64, 40});
        EXPECT_EQ(qAlpha(raw(image, 20, 20)), 255);
    }
}

TEST(Backdrop, DrawsTheSmallestWindows) {
    for (const QSize size : {QSize(1, 1), QSize(2, 1), QSize(1, 300), QSize(17, 5)}) {
        BackdropState state = captured(0.7, false);
        state.desktop.picture = busy(size);
        state.desktop.glass = makeGlass(state.desktop.picture, 1);
        EXPECT_EQ(qAlpha(raw(drawn(state, now, size), 0, 0)), 255);
        state.transparency = 0.3;
        EXPECT_EQ(qAlpha(raw(drawn(state, now, size), 0, 0)), 255);
    }
}

TEST(BackdropDeathTest, OtherPixelFormatsAreRefused) {
    QImage image(8, 8, QImage::Format_RGB16);
    BackdropPainter painter;
    EXPECT_DEATH(painter.paint(image, image.rect(), plainState(), now), "premultiplied");
}

} // namespace
} // namespace morrowleaf
