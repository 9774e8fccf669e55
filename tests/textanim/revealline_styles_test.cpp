// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Tests of what all styles have in common.
#include "base/curves.h"
#include "tests/textanim/paintedline.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

class EveryStyle : public testing::TestWithParam<TextAnim> {};

INSTANTIATE_TEST_SUITE_P(RevealLine, EveryStyle, testing::ValuesIn(allTextAnims),
                         [](const auto& info) { return rawValue(info.param).toStdString(); });

TEST_P(EveryStyle, PreparingDoesNotChangeThePicture) {
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

TEST_P(EveryStyle, DrawsOnlyInItsRectangle) {
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

TEST_P(EveryStyle, DoesNotChangeOnceAtRest) {
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

TEST_P(EveryStyle, DoesNotChangeUnreported) {
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

// No style jumps: neither where the blur changes its resolution, nor when a line comes to rest.
TEST_P(EveryStyle, EntersWithoutJumps) {
    if (GetParam() == TextAnim::Typewriter) {
        return; // its letters appear at once
    }
    for (const double ratio : {1.0, 1.25, 2.0}) {
        const RevealLine line(parts(GetParam(), u"A quiet office"_s));
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
    for (const QString& text : {u""_s, u"   "_s}) {
        const RevealLine line(parts(GetParam(), text));
        EXPECT_FALSE(line.changesBetween(0, 10));
        EXPECT_EQ(line.settledAfter(), 0);
        EXPECT_TRUE(line.paintedRect(10).isEmpty());
        EXPECT_EQ(alphaSum(painted(line, 10)), 0);
        EXPECT_EQ(line.size().width() > 0, !text.isEmpty());
        EXPECT_GT(line.size().height(), 20);
    }
}

TEST_P(EveryStyle, ReservesItsSpaceFromTheStart) {
    RevealLine::Parts narrow = parts(GetParam());
    narrow.maxWidth = 150;
    const RevealLine line(narrow);
    const QSizeF size = line.size();
    painted(line, 1);
    EXPECT_EQ(line.size(), size);
    EXPECT_LE(size.width(), 150);
    EXPECT_GT(size.height(), 60); // in every style the rows of the same letters
}

TEST_P(EveryStyle, DrawsOtherScriptsAndEmoji) {
    for (const QString& text : {u"السلام عليكم"_s, u"क्षत्रिय"_s, u"e\u0301a\u0308"_s,
                                u"👨‍👩‍👧 🇩🇪"_s, u"שלום"_s}) {
        const RevealLine line(parts(GetParam(), text));
        EXPECT_GT(alphaSum(painted(line, line.settledAfter())), 500) << text.toStdString();
        painted(line, (line.delay() + line.settledAfter()) / 2, 1.25);
    }
}

} // namespace
