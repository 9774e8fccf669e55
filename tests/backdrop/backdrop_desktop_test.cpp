// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Tests of the desktop behind the window, glass and photos.
#include "backdrop/backdrop.h"
#include "tests/backdrop/drawnbackdrop.h"

#include <gtest/gtest.h>

#include <cmath>

namespace morrowleaf {
namespace {

TEST(Backdrop, ThereIsGlassOnlyAboveATransparencyOfAHundredth) {
    BackdropState state = plainState();
    state.desktop.kind = DesktopView::Kind::Plain;
    state.transparency = 0.01;
    EXPECT_EQ(layersOf(state, false, false).tint, 0);
    state.transparency = 0.02;
    EXPECT_NEAR(layersOf(state, false, false).tint, 0.02 * 0.55, 1e-12);
    state.transparency = 0.8;
    EXPECT_NEAR(layersOf(state, false, false).ground, 0.2, 1e-12);
    EXPECT_NEAR(layersOf(state, false, false).tint, 0.8 * 0.8 * 0.16, 1e-12);
    state.transparency = 1;
    EXPECT_EQ(layersOf(state, false, false).ground, 0);
    EXPECT_EQ(layersOf(state, false, false).tint, 0);
    state.desktop.kind = DesktopView::Kind::Captured;
    for (const double t : {0.005, 0.02, 0.3, 0.7, 0.8, 0.97, 1.0}) {
        state.transparency = t;
        for (const bool glass : {false, true}) {
            const Layers all = layersOf(state, true, glass);
            EXPECT_NEAR(all.ground + all.tint + all.glass + all.sharp, 1, 1e-12);
            EXPECT_GE(all.sharp, -1e-12);
        }
    }
}

TEST(Backdrop, IsOpaqueIfTheWindowCannotBeTransparent) {
    BackdropState state = plainState();
    const QImage opaque = drawn(state);
    state.transparency = 0.7;
    EXPECT_EQ(drawn(state), opaque);
    state.desktop.kind = DesktopView::Kind::Captured; // without a picture
    EXPECT_EQ(drawn(state), opaque);
}

TEST(Backdrop, TransparentPixelsArePremultiplied) {
    for (const auto kind : {DesktopView::Kind::Plain, DesktopView::Kind::LiveBlur}) {
        for (const double t : {0.02, 0.3, 0.8, 0.99, 1.0}) {
            BackdropState state = plainState(7);
            state.desktop.kind = kind;
            state.transparency = t;
            const QImage image = drawn(state);
            const Layers layers = layersOf(state, false, false);
            const double alpha = 255 * (layers.ground + layers.tint);
            for (int y = 0; y < small.height(); y += 3) {
                for (int x = 0; x < small.width(); ++x) {
                    const QRgb pixel = raw(image, x, y);
                    ASSERT_LE(std::max({qRed(pixel), qGreen(pixel), qBlue(pixel)}), qAlpha(pixel));
                    ASSERT_NEAR(qAlpha(pixel), alpha, 1.1);
                }
            }
        }
    }
}

TEST(Backdrop, FullTransparencyShowsTheDesktopItself) {
    const BackdropState state = captured(1, true);
    EXPECT_EQ(drawn(state).convertToFormat(QImage::Format_RGB32), state.desktop.picture);
    BackdropState plain = plainState();
    plain.desktop.kind = DesktopView::Kind::Plain;
    plain.transparency = 1;
    EXPECT_EQ(raw(drawn(plain), 100, 100), 0U);
}

// The mean difference between pixels 12 columns apart, which frosting must lower.
double roughness(const QImage& image) {
    double sum = 0;
    for (int y = 100; y < 200; ++y) {
        for (int x = 100; x < 380; ++x) {
            sum += std::abs(qRed(raw(image, x, y)) - qRed(raw(image, x + 12, y)));
        }
    }
    return sum / 28000;
}

TEST(Backdrop, GlassFrostsTheDesktopAndClearGlassBarely) {
    BackdropState frosted = captured(0.6, true);
    frosted.grainOn = false;
    BackdropState waiting = frosted;
    waiting.desktop.glass = nullptr;
    BackdropState clear = frosted;
    clear.transparency = 0.61;
    EXPECT_GT(roughness(drawn(waiting)), 50);
    EXPECT_LT(roughness(drawn(frosted)), 2);
    EXPECT_GT(roughness(drawn(clear)), 15);
    clear.liquidGlass = false;
    EXPECT_LT(roughness(drawn(clear)), 2);
}

TEST(Backdrop, GlassFadesInOverTheSharpPicture) {
    BackdropState state = captured(0.5, true);
    BackdropState without = state;
    without.desktop.glass = nullptr;
    state.desktop.glassOpacity = 0;
    EXPECT_EQ(drawn(state), drawn(without));
    state.desktop.glassOpacity = 0.5;
    const QImage half = drawn(state);
    state.desktop.glassOpacity = 1;
    EXPECT_GT(meanDifference(half, drawn(state)), 3);
    EXPECT_GT(meanDifference(half, drawn(without)), 3);
}

TEST(Backdrop, TheRimIsBrighterThanTheMiddleAndOnlyOfLiquidGlass) {
    BackdropState state = captured(0.6, true);
    state.desktop.picture.fill(qRgb(100, 100, 100));
    state.desktop.glass = makeGlass(state.desktop.picture, 1);
    state.grainOn = false;
    BackdropState flat = state;
    flat.liquidGlass = false;
    const QImage with = drawn(state);
    const QImage without = drawn(flat);
    EXPECT_GT(qGreen(raw(with, 240, 0)), qGreen(raw(without, 240, 0)) + 20);
    EXPECT_GT(qGreen(raw(with, 240, 0)), qGreen(raw(with, 240, 299)));
    EXPECT_EQ(raw(with, 240, 150), raw(without, 240, 150));
}

TEST(Backdrop, GlassIsAvailableOverACaptureAndWhereTheSystemHasIt) {
    using Kind = DesktopView::Kind;
    for (const auto kind : {Kind::Nothing, Kind::Plain, Kind::LiveBlur, Kind::Captured,
                            Kind::SystemBlur, Kind::SystemGlass}) {
        DesktopView desktop;
        desktop.kind = kind;
        EXPECT_EQ(glassAvailable(desktop), kind == Kind::Captured || kind == Kind::SystemGlass);
    }
    EXPECT_EQ(makeGlass(QImage(), 1), nullptr);
}

BackdropState photoState(QRgb colour) {
    BackdropState state;
    state.palette = Palette::photo();
    state.hasPhoto = true;
    state.photo = QImage(small, QImage::Format_RGB32);
    state.photo.fill(colour);
    state.vignette = 0;
    state.grainOn = false;
    return state;
}

TEST(Backdrop, APhotoIsShadedByThreeTenths) {
    const QImage image = drawn(photoState(qRgb(200, 100, 50)));
    EXPECT_NEAR(qRed(raw(image, 240, 150)), 140, 1);
    EXPECT_NEAR(qGreen(raw(image, 240, 150)), 70, 1);
    EXPECT_NEAR(qBlue(raw(image, 240, 150)), 35, 1);
    EXPECT_EQ(qAlpha(raw(image, 240, 150)), 255);
}

TEST(Backdrop, APhotoFadesInOverThePhotoPalette) {
    BackdropState state = photoState(qRgb(215, 215, 215));
    state.photoOpacity = 0;
    EXPECT_NEAR(qRed(raw(drawn(state), 200, 100)), 15, 1);
    state.photoOpacity = 0.5;
    EXPECT_NEAR(qRed(raw(drawn(state), 200, 100)), (15 + 150) / 2.0, 1);
    state.photo = QImage();
    EXPECT_NEAR(qRed(raw(drawn(state), 200, 100)), 15, 1);
}

TEST(Backdrop, APhotoTakesGrainVignetteAndTransparency) {
    BackdropState state = photoState(qRgb(200, 200, 200));
    const QImage bare = drawn(state);
    state.grainOn = true;
    EXPECT_GT(meanDifference(bare, drawn(state)), 1);
    state.grainOn = false;
    state.vignette = 1;
    const QImage dark = drawn(state, now, {2800, 300});
    EXPECT_EQ(raw(dark, 10, 150), 0xFF000000U);
    state.vignette = 0;
    state.transparency = 0.8;
    state.desktop.kind = DesktopView::Kind::Plain;
    const Layers layers = layersOf(state, false, false);
    EXPECT_NEAR(qAlpha(raw(drawn(state), 9, 9)), 255 * (layers.ground + layers.tint), 1.1);
}

} // namespace
} // namespace morrowleaf
