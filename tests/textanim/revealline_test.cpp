// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/curves.h"
#include "tests/textanim/paintedline.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

TEST(RevealLine, DelaysGrowWithTheIndex) {
    RevealLine::Parts third = parts(TextAnim::Fade);
    third.index = 3;
    EXPECT_DOUBLE_EQ(RevealLine(third).delay(), 1.03);
    RevealLine::Parts written = parts(TextAnim::Handwrite);
    written.index = 2;
    EXPECT_DOUBLE_EQ(RevealLine(written).delay(), 2.5);
    EXPECT_DOUBLE_EQ(RevealLine(written).settledAfter(), 2.5 + 1.4375);
}

TEST(RevealLine, TheTypewriterChangesOnItsTicksOnly) {
    const RevealLine line(parts(TextAnim::Typewriter));
    const double start = line.delay();
    EXPECT_FALSE(line.changesBetween(start, start + 0.9 / 26));
    EXPECT_TRUE(line.changesBetween(start, start + 1.1 / 26));
    EXPECT_FALSE(line.changesBetween(start + 1.1 / 26, start + 1.9 / 26));
    EXPECT_NEAR(line.settledAfter(), start + 20.0 / 26, 1e-9);
}

// Typed letters do not move when further letters appear, unless they join them.
TEST(RevealLine, TypedLettersDoNotJump) {
    RevealLine::Parts bare = parts(TextAnim::Typewriter, u"AVAvenue To a way"_s, u"serif"_s);
    bare.shadow.opacity = 0;
    const RevealLine line(bare);
    const QImage whole = painted(line, line.settledAfter());
    QImage before = painted(line, line.delay());
    for (int typed = 1; typed <= 17; ++typed) {
        const QImage now = painted(line, line.delay() + (typed + 0.5) / 26);
        for (int y = 0; y < now.height(); ++y) {
            for (int x = 0; x < now.width(); ++x) {
                EXPECT_LE(qAlpha(before.pixel(x, y)), qAlpha(now.pixel(x, y)) + 1);
                EXPECT_LE(qAlpha(now.pixel(x, y)), qAlpha(whole.pixel(x, y)) + 1);
            }
        }
        before = now;
    }
    EXPECT_EQ(before, whole);
}

TEST(RevealLine, ArabicIsTypedFromTheRight) {
    RevealLine::Parts bare = parts(TextAnim::Typewriter, u"السلام عليكم"_s);
    bare.shadow.opacity = 0;
    const RevealLine line(bare);
    const QRectF whole = inkOf(painted(line, line.settledAfter()));
    const QRectF begun = inkOf(painted(line, line.delay() + 3.5 / 26));
    EXPECT_NEAR(begun.right(), whole.right(), 1);
    EXPECT_GT(begun.left(), whole.center().x());
}

TEST(RevealLine, HalfATypedLineHasHalfAShadow) {
    RevealLine::Parts dark = parts(TextAnim::Typewriter, u"nnnnnnnnnnnnnnnn"_s, u"mono"_s);
    dark.color = QColor(Qt::black);
    const auto shadowOf = [&](double seconds) {
        RevealLine::Parts bare = dark;
        bare.shadow.opacity = 0;
        const QImage with = painted(RevealLine(dark), seconds);
        // Without the shadow there is nothing below the letters.
        EXPECT_EQ(alphaSum(painted(RevealLine(bare), seconds), QRect(0, 110, 480, 90)), 0);
        return alphaSum(with, QRect(0, 110, 480, 90));
    };
    const double whole = shadowOf(10);
    EXPECT_GT(whole, 1000);
    EXPECT_NEAR(shadowOf(0.55 + 8.5 / 26) / whole, 0.5, 0.05);
}

TEST(RevealLine, TheShadowIsAGaussianOfTheGivenOpacity) {
    RevealLine::Parts dark = parts(TextAnim::Rise, u"nnnnnnnn"_s, u"mono"_s);
    dark.color = QColor(Qt::black);
    RevealLine::Parts bare = dark;
    bare.shadow.opacity = 0;
    dark.color.setAlpha(1);
    const double letters = alphaSum(painted(RevealLine(bare), 10));
    bare.color.setAlpha(1);
    const double faint = alphaSum(painted(RevealLine(dark), 10));
    EXPECT_GT(letters, 0);
    EXPECT_LT(faint, letters / 20); // the shadow of faint letters is faint
    dark.color.setAlpha(255);
    const double both = alphaSum(painted(RevealLine(dark), 10));
    EXPECT_NEAR(both / letters, 1.35, 0.08);
}

TEST(RevealLine, FadeLowersOpacityAndPosition) {
    RevealLine::Parts bare = parts(TextAnim::Fade);
    bare.shadow.opacity = 0;
    const RevealLine line(bare);
    const double whole = alphaSum(painted(line, line.settledAfter()));
    const double half = alphaSum(painted(line, line.delay() + 0.575));
    EXPECT_NEAR(half / whole, 0.6846, 0.01);
    const double resting = inkOf(painted(line, line.settledAfter())).center().y();
    const double low = inkOf(painted(line, line.delay() + 0.575)).center().y();
    EXPECT_NEAR(low - resting, 22 * 0.3154, 2);
}

TEST(RevealLine, BlurSpreadsAndGrowsAboutTheCentre) {
    RevealLine::Parts bare = parts(TextAnim::Blur);
    bare.shadow.opacity = 0;
    const RevealLine line(bare);
    const double whole = alphaSum(painted(line, line.settledAfter()));
    for (const double since : {0.35, 0.7, 1.0, 1.2, 1.35}) {
        const double progress = easeOut(since / 1.4);
        const double scale = 1.06 - 0.06 * progress;
        EXPECT_NEAR(alphaSum(painted(line, line.delay() + since)) / whole, progress * scale * scale,
                    0.03)
            << since;
    }
    const QRectF resting = inkOf(painted(line, line.settledAfter()));
    const QRectF spread = inkOf(painted(line, line.delay() + 0.7));
    EXPECT_NEAR(spread.center().x(), resting.center().x(), 3);
    EXPECT_GT(spread.width(), resting.width() + 20);
}

TEST(RevealLine, RiseOvershootsUpwards) {
    RevealLine::Parts bare = parts(TextAnim::Rise);
    bare.shadow.opacity = 0;
    const RevealLine line(bare);
    const double resting = inkOf(painted(line, line.settledAfter(), 2)).center().y();
    double highest = resting;
    for (int tick = 0; 0.4 + tick * 0.02 < 1.2; ++tick) {
        const double t = 0.4 + tick * 0.02;
        highest = std::min(highest, inkOf(painted(line, line.delay() + t, 2)).center().y());
    }
    EXPECT_NEAR(resting - highest, 1.77, 0.5);
}

TEST(RevealLine, HandwritingIsOutlinedFirstAndInkedLater) {
    RevealLine::Parts bare = parts(TextAnim::Handwrite, u"lllllllllllllll"_s, u"mono"_s);
    bare.shadow.opacity = 0;
    const RevealLine line(bare);
    const QRectF whole = inkOf(painted(line, line.settledAfter()));
    const QRectF half = inkOf(painted(line, line.delay() + 0.625));
    EXPECT_NEAR(half.width() / whole.width(), 0.5, 0.07);
    EXPECT_NEAR(half.left(), whole.left(), 1);
    double before = 0;
    for (int tick = 0; 0.1 + tick * 0.1 < 1.45; ++tick) {
        const double t = 0.1 + tick * 0.1;
        const double now = alphaSum(painted(line, line.delay() + t));
        EXPECT_GT(now, before);
        before = now;
    }
}

TEST(RevealLine, ANewColourDoesNotRestartTheEntrance) {
    RevealLine::Parts red = parts(TextAnim::Handwrite);
    red.shadow.opacity = 0;
    RevealLine::Parts blue = red;
    red.color = QColor(255, 0, 0);
    blue.color = QColor(0, 0, 255);
    RevealLine line(red);
    const QImage first = painted(line, 1.2);
    line.setColors(blue.color, blue.shadow);
    const QImage second = painted(line, 1.2);
    EXPECT_EQ(second, painted(RevealLine(blue), 1.2));
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            const QRgb a = first.pixel(x, y);
            const QRgb b = second.pixel(x, y);
            ASSERT_EQ(qAlpha(a), qAlpha(b));
            // Both are premultiplied: the colour is as strong as the alpha.
            ASSERT_NEAR(qRed(a), qAlpha(a), 2);
            ASSERT_NEAR(qBlue(b), qAlpha(b), 2);
            ASSERT_EQ(qBlue(a), 0);
        }
    }
}

TEST(RevealLine, PixelsFollowTheScaleOfThePainter) {
    const RevealLine line(parts(TextAnim::Rise));
    QImage scaled(960, 400, QImage::Format_ARGB32_Premultiplied);
    scaled.fill(Qt::transparent);
    QPainter painter(&scaled);
    painter.scale(2, 2);
    line.paint(painter, place, 10);
    painter.end();
    scaled.setDevicePixelRatio(2);
    EXPECT_EQ(painted(line, 10, 2), scaled);
}

} // namespace
