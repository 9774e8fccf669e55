// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/entrances.h"

#include "base/curves.h"

#include <gtest/gtest.h>

using namespace morrowleaf;

TEST(Entrance, RunsFromItsDelayThroughItsDuration) {
    EXPECT_EQ(headerEntrance.progress(0), 0);
    EXPECT_EQ(headerEntrance.progress(0.9), 0);
    EXPECT_NEAR(headerEntrance.progress(1.5), 0.6846, 0.0005);
    EXPECT_EQ(headerEntrance.progress(2.1), 1);
    EXPECT_EQ(headerEntrance.progress(1e6), 1);
    EXPECT_EQ(hintEntrance.delay, 2.6);
    EXPECT_DOUBLE_EQ(hintEntrance.end(), 4.0);
}

TEST(Entrance, RuleAndAuthorFollowTheLines) {
    const ClosingEntrances fade = closingEntrances(TextAnim::Fade, 3);
    EXPECT_NEAR(fade.rule.delay, 1.13, 1e-9);
    EXPECT_NEAR(fade.author.delay, 1.28, 1e-9);
    EXPECT_EQ(fade.rule.duration, 0.9);
    EXPECT_EQ(fade.author.duration, 1.0);
    const ClosingEntrances written = closingEntrances(TextAnim::Handwrite, 3);
    EXPECT_NEAR(written.rule.delay, 4.15, 1e-9);
    EXPECT_NEAR(written.author.delay, 4.3, 1e-9);
    EXPECT_NEAR(closingEntrances(TextAnim::Fade, 1).rule.delay, 0.71 + 0.1, 1e-9);
}

TEST(Mark, SpringsInOnce) {
    EXPECT_EQ(mark::opacity(0.35), 0);
    EXPECT_DOUBLE_EQ(mark::scale(0.35), 0.7);
    EXPECT_NEAR(mark::scale(0.85), 0.7 + 0.3 * spring(0.5, 1.1, 0.75), 1e-12);
    double highest = 0;
    for (int tick = 0; tick < 400; ++tick) {
        const double t = tick * 0.01;
        highest = std::max(highest, mark::scale(t));
        EXPECT_LE(mark::opacity(t), 1);
    }
    EXPECT_GT(highest, 1.005); // it overshoots
    EXPECT_LT(highest, 1.02);
    EXPECT_EQ(mark::scale(mark::end()), 1);
    EXPECT_EQ(mark::opacity(1000), 1);
}
