#include "textanim/revealline.h"

#include "tests/fakes/shippedfonts.h"
#include "textanim/curves.h"

#include <QPainter>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>

using namespace morrowleaf;

namespace {

RevealLine::Parts parts(TextAnim style, const QString& text = "A quiet office, fine",
                        const char* name = "fraunces") {
    const TextFont font = quoteFont(shippedFonts(), name, 28);
    return {text, 0, style, font, font, QColor("#f3ece0"), {0.35, 12, {0, 6}}, 0};
}

constexpr QPointF place{90.3, 70.6};

QImage painted(const RevealLine& line, double seconds, double ratio = 1) {
    QImage picture(QSize(static_cast<int>(480 * ratio), static_cast<int>(200 * ratio)),
                   QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    line.paint(painter, place, seconds);
    return picture;
}

QRectF inkOf(const QImage& picture) {
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

double alphaSum(const QImage& picture, const QRect& rect) {
    double sum = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            sum += qAlpha(picture.pixel(x, y));
        }
    }
    return sum;
}

double alphaSum(const QImage& picture) {
    return alphaSum(picture, picture.rect());
}

double meanDifference(const QImage& one, const QImage& other) {
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

class EveryStyle : public testing::TestWithParam<TextAnim> {};

INSTANTIATE_TEST_SUITE_P(RevealLine, EveryStyle, testing::ValuesIn(allTextAnims),
                         [](const auto& info) { return rawValue(info.param).toStdString(); });

TEST_P(EveryStyle, PreparingChangesNothingOfThePicture) {
    const RevealLine line(parts(GetParam()));
    const RevealLine prepared(parts(GetParam()));
    const QTransform device = QTransform::fromScale(2, 2);
    const int steps = static_cast<int>(prepared.settledAfter() / 0.13) + 2;
    for (int step = 0; step <= steps; ++step) {
        const double seconds = 0.13 * step;
        prepared.prepare(device, seconds);
        EXPECT_TRUE(prepared.isPrepared(device, seconds));
        EXPECT_EQ(painted(prepared, seconds, 2), painted(line, seconds, 2)) << seconds;
        EXPECT_TRUE(line.isPrepared(device, seconds));
    }
    EXPECT_FALSE(prepared.isPrepared(QTransform(), 20));
}

TEST_P(EveryStyle, LooksTheSameInAnyOrderOfInstants) {
    const RevealLine line(parts(GetParam()));
    std::vector<double> instants;
    instants.reserve(12);
    for (int i = 0; i < 12; ++i) {
        instants.push_back(line.delay() + (line.settledAfter() - line.delay()) * i / 10);
    }
    std::vector<QImage> fresh;
    fresh.reserve(instants.size());
    for (const double at : instants) {
        fresh.push_back(painted(RevealLine(parts(GetParam())), at, 1.25));
    }
    std::vector<std::size_t> order(instants.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    const auto paintInOrder = [&] {
        for (const std::size_t i : order) {
            EXPECT_EQ(painted(line, instants[i], 1.25), fresh[i]) << "instant " << i;
        }
    };
    paintInOrder();
    std::ranges::reverse(order);
    paintInOrder();
    for (std::size_t i = 0; i < order.size(); ++i) {
        std::swap(order[i], order[(i * 7 + 3) % order.size()]);
    }
    paintInOrder();
}

TEST_P(EveryStyle, TouchesOnlyItsRectangle) {
    for (const double ratio : {1.0, 1.25, 2.0}) {
        const RevealLine line(parts(GetParam()));
        for (int i = 1; i <= 8; ++i) {
            const double at = line.delay() + (line.settledAfter() - line.delay()) * i / 8;
            const QRectF ink = inkOf(painted(line, at, ratio));
            const QRectF allowed = line.paintedRect(at).translated(place);
            EXPECT_TRUE(allowed.contains(ink)) << i << " at " << ratio;
        }
    }
}

TEST_P(EveryStyle, ShowsNothingDuringTheDelay) {
    const RevealLine line(parts(GetParam()));
    EXPECT_FALSE(line.changesBetween(-1, line.delay()));
    EXPECT_TRUE(line.paintedRect(line.delay()).isEmpty());
    EXPECT_EQ(alphaSum(painted(line, line.delay())), 0);
    EXPECT_TRUE(line.changesBetween(0, line.settledAfter()));
}

TEST_P(EveryStyle, AsksForNothingMoreOnceItRests) {
    const RevealLine line(parts(GetParam()));
    const double rest = line.settledAfter();
    const QImage resting = painted(line, rest);
    EXPECT_GT(alphaSum(resting), 1000);
    for (const double later : {rest + 0.001, rest + 0.4, rest + 3600, 1e9}) {
        EXPECT_FALSE(line.changesBetween(rest, later));
        EXPECT_EQ(painted(line, later), resting);
    }
    EXPECT_TRUE(line.changesBetween(rest - 0.03, rest));
}

TEST_P(EveryStyle, UnchangedStagesLookAlike) {
    const RevealLine line(parts(GetParam()));
    double last = 0;
    QImage before = painted(line, last);
    for (int tick = 0; 0.01 + tick * 0.017 < line.settledAfter() + 0.1; ++tick) {
        const double at = 0.01 + tick * 0.017;
        const QImage now = painted(line, at);
        if (!line.changesBetween(last, at)) {
            EXPECT_EQ(now, before) << at;
        }
        before = now;
        last = at;
    }
}

// Nothing pops: not where the blur changes its resolution, nor as a line comes
// to rest.
TEST_P(EveryStyle, ComesInWithoutJumps) {
    if (GetParam() == TextAnim::Typewriter) {
        return; // its letters are there at once
    }
    for (const double ratio : {1.0, 1.25, 2.0}) {
        const RevealLine line(parts(GetParam(), "A quiet office"));
        const double step = (line.settledAfter() - line.delay()) / 160;
        std::vector<double> changes;
        QImage before = painted(line, line.delay(), ratio);
        for (int i = 1; i <= 162; ++i) {
            const QImage now = painted(line, line.delay() + i * step, ratio);
            changes.push_back(meanDifference(before, now));
            before = now;
        }
        const double most = *std::ranges::max_element(changes);
        for (std::size_t i = 2; i + 2 < changes.size(); ++i) {
            const double around =
                std::max({changes[i - 2], changes[i - 1], changes[i + 1], changes[i + 2]});
            EXPECT_LE(changes[i], 1.6 * around + 0.05 * most) << "step " << i << " at " << ratio;
        }
    }
}

TEST_P(EveryStyle, EmptyAndBlankLinesStayInvisibleAndStill) {
    for (const char* text : {"", "   "}) {
        const RevealLine line(parts(GetParam(), text));
        EXPECT_FALSE(line.changesBetween(0, 10));
        EXPECT_EQ(line.settledAfter(), 0);
        EXPECT_TRUE(line.paintedRect(10).isEmpty());
        EXPECT_EQ(alphaSum(painted(line, 10)), 0);
        EXPECT_EQ(line.size().width() > 0, text[0] != 0);
        EXPECT_GT(line.size().height(), 20);
    }
}

TEST_P(EveryStyle, KeepsItsPlaceFromTheStart) {
    RevealLine::Parts narrow = parts(GetParam());
    narrow.maxWidth = 150;
    const RevealLine line(narrow);
    const QSizeF size = line.size();
    painted(line, 1);
    EXPECT_EQ(line.size(), size);
    EXPECT_LE(size.width(), 150);
    if (GetParam() != TextAnim::Handwrite) {
        EXPECT_GT(size.height(), 60);
    } else {
        EXPECT_LT(size.height(), 36);
    }
}

TEST_P(EveryStyle, ForeignScriptsAndPicturesAppear) {
    for (const char* text :
         {"السلام عليكم", "क्षत्रिय", "e\u0301a\u0308", "👨‍👩‍👧 🇩🇪", "שלום"}) {
        const RevealLine line(parts(GetParam(), QString::fromUtf8(text)));
        EXPECT_GT(alphaSum(painted(line, line.settledAfter())), 500) << text;
        painted(line, (line.delay() + line.settledAfter()) / 2, 1.25);
    }
}

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

// What stands stays as it is, wherever the next letter falls.
TEST(RevealLine, TypedLettersDoNotJump) {
    RevealLine::Parts bare = parts(TextAnim::Typewriter, "AVAffinity office", "serif");
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
    RevealLine::Parts bare = parts(TextAnim::Typewriter, QString::fromUtf8("السلام عليكم"));
    bare.shadow.opacity = 0;
    const RevealLine line(bare);
    const QRectF whole = inkOf(painted(line, line.settledAfter()));
    const QRectF begun = inkOf(painted(line, line.delay() + 3.5 / 26));
    EXPECT_NEAR(begun.right(), whole.right(), 1);
    EXPECT_GT(begun.left(), whole.center().x());
}

TEST(RevealLine, HalfATypedLineHasHalfAShadow) {
    RevealLine::Parts dark = parts(TextAnim::Typewriter, "nnnnnnnnnnnnnnnn", "mono");
    dark.color = QColor(Qt::black);
    const auto shadowOf = [&](double seconds) {
        RevealLine::Parts bare = dark;
        bare.shadow.opacity = 0;
        const QImage with = painted(RevealLine(dark), seconds);
        // Below the letters there is nothing else.
        EXPECT_EQ(alphaSum(painted(RevealLine(bare), seconds), QRect(0, 110, 480, 90)), 0);
        return alphaSum(with, QRect(0, 110, 480, 90));
    };
    const double whole = shadowOf(10);
    EXPECT_GT(whole, 1000);
    EXPECT_NEAR(shadowOf(0.55 + 8.5 / 26) / whole, 0.5, 0.05);
}

TEST(RevealLine, TheShadowIsAGaussianOfTheGivenOpacity) {
    RevealLine::Parts dark = parts(TextAnim::Rise, "nnnnnnnn", "mono");
    dark.color = QColor(Qt::black);
    RevealLine::Parts bare = dark;
    bare.shadow.opacity = 0;
    dark.color.setAlpha(1);
    const double letters = alphaSum(painted(RevealLine(bare), 10));
    bare.color.setAlpha(1);
    const double faint = alphaSum(painted(RevealLine(dark), 10));
    EXPECT_GT(letters, 0);
    EXPECT_LT(faint, letters / 20); // a shadow of what is hardly there
    dark.color.setAlpha(255);
    const double both = alphaSum(painted(RevealLine(dark), 10));
    EXPECT_NEAR(both / letters, 1.35, 0.08);
}

TEST(RevealLine, FadesByItsOpacityAndLiesLow) {
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
    RevealLine::Parts bare = parts(TextAnim::Handwrite, "lllllllllllllll", "mono");
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

TEST(RevealLine, ColourChangesApplyAtTheStageItStands) {
    RevealLine::Parts red = parts(TextAnim::Handwrite);
    red.shadow.opacity = 0;
    RevealLine::Parts blue = red;
    red.color = QColor(255, 0, 0);
    blue.color = QColor(0, 0, 255);
    const QImage first = painted(RevealLine(red), 1.2);
    const QImage second = painted(RevealLine(blue), 1.2);
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            const QRgb a = first.pixel(x, y);
            const QRgb b = second.pixel(x, y);
            ASSERT_EQ(qAlpha(a), qAlpha(b));
            // Both are premultiplied: all of the colour and nothing else.
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
