#include "screen/backdrop.h"

#include "screen/glass.h"
#include "screen/layers.h"
#include "tests/screen/backdropreference.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace morrowleaf {
namespace {

constexpr double now = 8.1e8; // seconds since 2001
const QSize small(480, 300);

BackdropState plainState(int palette = 1) {
    BackdropState state;
    state.palette = Palette::all()[static_cast<std::size_t>(palette)];
    return state;
}

QImage busy(const QSize& size) {
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            picture.setPixel(x, y, (x / 12 + y / 12) % 2 ? qRgb(250, 240, 20) : qRgb(10, 60, 220));
        }
    }
    return picture;
}

BackdropState captured(double transparency, bool withGlass) {
    BackdropState state = plainState(0);
    state.transparency = transparency;
    state.behind.kind = Behind::Kind::Captured;
    state.behind.picture = busy(small);
    if (withGlass) {
        state.behind.glass = makeGlass(state.behind.picture, 1);
    }
    return state;
}

QImage drawn(const BackdropState& state, double at = now, const QSize& size = small,
             double ratio = 1) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(0x55AA3311);
    BackdropPainter painter;
    painter.paint(image, image.rect(), state, at);
    return image;
}

QRgb raw(const QImage& image, int x, int y) {
    return reinterpret_cast<const QRgb*>(image.constScanLine(y))[x];
}

double meanDifference(const QImage& a, const QImage& b) {
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

TEST(Backdrop, StandsStillOnlyWhenToldTo) {
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

TEST(Backdrop, TheSamePictureComesFromAFreshAndFromAUsedPainter) {
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

TEST(Backdrop, WhatIsKeptNeverOutlivesWhatItCameFrom) {
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
    state.behind.glassOpacity = 0.5;
    expectFresh(state, now);
    state.behind.picture.fill(Qt::red);
    state.behind.glass = makeGlass(state.behind.picture, 1);
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

TEST(Backdrop, TheGlassLayerBeginsAboveAHundredth) {
    BackdropState state = plainState();
    state.behind.kind = Behind::Kind::Plain;
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
    state.behind.kind = Behind::Kind::Captured;
    for (const double t : {0.005, 0.02, 0.3, 0.7, 0.8, 0.97, 1.0}) {
        state.transparency = t;
        for (const bool glass : {false, true}) {
            const Layers all = layersOf(state, true, glass);
            EXPECT_NEAR(all.ground + all.tint + all.glass + all.sharp, 1, 1e-12);
            EXPECT_GE(all.sharp, -1e-12);
        }
    }
}

TEST(Backdrop, TransparencyWithoutAnythingBehindIsOpaque) {
    BackdropState state = plainState();
    const QImage opaque = drawn(state);
    state.transparency = 0.7;
    EXPECT_EQ(drawn(state), opaque);
    state.behind.kind = Behind::Kind::Captured; // without a picture
    EXPECT_EQ(drawn(state), opaque);
}

TEST(Backdrop, TransparentPixelsArePremultiplied) {
    for (const auto kind : {Behind::Kind::Plain, Behind::Kind::LiveBlur}) {
        for (const double t : {0.02, 0.3, 0.8, 0.99, 1.0}) {
            BackdropState state = plainState(7);
            state.behind.kind = kind;
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
    EXPECT_EQ(drawn(state).convertToFormat(QImage::Format_RGB32), state.behind.picture);
    BackdropState plain = plainState();
    plain.behind.kind = Behind::Kind::Plain;
    plain.transparency = 1;
    EXPECT_EQ(raw(drawn(plain), 100, 100), 0U);
}

// How much neighbours differ: frosting must level the pattern of the picture.
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
    waiting.behind.glass = nullptr;
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
    without.behind.glass = nullptr;
    state.behind.glassOpacity = 0;
    EXPECT_EQ(drawn(state), drawn(without));
    state.behind.glassOpacity = 0.5;
    const QImage half = drawn(state);
    state.behind.glassOpacity = 1;
    EXPECT_GT(meanDifference(half, drawn(state)), 3);
    EXPECT_GT(meanDifference(half, drawn(without)), 3);
}

TEST(Backdrop, TheRimIsBrighterThanTheMiddleAndOnlyOfLiquidGlass) {
    BackdropState state = captured(0.6, true);
    state.behind.picture.fill(qRgb(100, 100, 100));
    state.behind.glass = makeGlass(state.behind.picture, 1);
    state.grainOn = false;
    BackdropState flat = state;
    flat.liquidGlass = false;
    const QImage with = drawn(state);
    const QImage without = drawn(flat);
    EXPECT_GT(qGreen(raw(with, 240, 0)), qGreen(raw(without, 240, 0)) + 20);
    EXPECT_GT(qGreen(raw(with, 240, 0)), qGreen(raw(with, 240, 299)));
    EXPECT_EQ(raw(with, 240, 150), raw(without, 240, 150));
}

TEST(Backdrop, GlassIsAvailableExactlyOverACapture) {
    for (const auto kind : {Behind::Kind::Nothing, Behind::Kind::Plain, Behind::Kind::LiveBlur,
                            Behind::Kind::Captured}) {
        Behind behind;
        behind.kind = kind;
        EXPECT_EQ(glassAvailable(behind), kind == Behind::Kind::Captured);
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
    state.behind.kind = Behind::Kind::Plain;
    const Layers layers = layersOf(state, false, false);
    EXPECT_NEAR(qAlpha(raw(drawn(state), 9, 9)), 255 * (layers.ground + layers.tint), 1.1);
}

TEST(Backdrop, SettingsBeyondTheirRangesAreHarmless) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double wild : {nan, infinity, -infinity, -7.0, 1e300}) {
        BackdropState state = captured(wild, true);
        state.vignette = wild;
        state.photoOpacity = wild;
        state.behind.glassOpacity = wild;
        const QImage image = drawn(state, wild, {64, 40});
        EXPECT_EQ(qAlpha(raw(image, 20, 20)), 255);
    }
}

TEST(Backdrop, DrawsTheSmallestWindows) {
    for (const QSize size : {QSize(1, 1), QSize(2, 1), QSize(1, 300), QSize(17, 5)}) {
        BackdropState state = captured(0.7, false);
        state.behind.picture = busy(size);
        state.behind.glass = makeGlass(state.behind.picture, 1);
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
