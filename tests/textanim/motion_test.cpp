// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/motion.h"

#include "base/curves.h"
#include "textanim/handwriting.h"
#include "textanim/typewriter.h"

#include <gtest/gtest.h>

#include <limits>

using namespace morrowleaf;

namespace {

TEST(Motion, FadeFollowsItsCurve) {
    const LineEffects before = fade().effectsAt(-1);
    EXPECT_EQ(before.opacity, 0);
    EXPECT_EQ(before.blurRadius, 9);
    EXPECT_EQ(before.offset, 22);
    const LineEffects half = fade().effectsAt(0.575);
    EXPECT_NEAR(half.opacity, 0.6846, 1e-4);
    EXPECT_NEAR(half.blurRadius, 9 * 0.3154, 1e-3);
    EXPECT_NEAR(half.offset, 22 * 0.3154, 3e-3);
    EXPECT_EQ(half.scale, 1);
    EXPECT_EQ(fade().effectsAt(1.15), LineEffects{});
    EXPECT_NE(fade().effectsAt(1.14), LineEffects{});
}

TEST(Motion, BlurFollowsItsCurve) {
    const LineEffects before = blur().effectsAt(0);
    EXPECT_EQ(before.opacity, 0);
    EXPECT_EQ(before.blurRadius, 26);
    EXPECT_DOUBLE_EQ(before.scale, 1.06);
    EXPECT_EQ(before.offset, 0);
    const LineEffects half = blur().effectsAt(0.7);
    EXPECT_NEAR(half.opacity, 0.6846, 1e-4);
    EXPECT_NEAR(half.blurRadius, 26 * 0.3154, 3e-3);
    EXPECT_NEAR(half.scale, 1 + 0.06 * 0.3154, 1e-4);
    EXPECT_EQ(blur().effectsAt(1.4), LineEffects{});
}

TEST(Motion, RiseOvershootsItsPlaceButNotItsOpacity) {
    const LineEffects before = rise().effectsAt(0);
    EXPECT_EQ(before.opacity, 0);
    EXPECT_EQ(before.offset, 46);
    double highest = 0;
    for (int tick = 0; tick * 0.001 < 3; ++tick) {
        const double t = tick * 0.001;
        const LineEffects values = rise().effectsAt(t);
        highest = std::min(highest, values.offset);
        EXPECT_LE(values.opacity, 1);
        EXPECT_NEAR(values.offset, 46 * (1 - spring(t, 0.9, 0.72)), 0.03);
        EXPECT_EQ(values.blurRadius, 0);
    }
    EXPECT_NEAR(highest, -1.77, 0.05);
    EXPECT_EQ(rise().effectsAt(rise().duration), LineEffects{});
    EXPECT_LT(rise().duration, 2);
}

TEST(PenProgress, TracesBeforeItInks) {
    const auto at = [](double t) { return penProgress(t); };
    EXPECT_EQ(at(-0.1).traced, 0);
    EXPECT_EQ(at(0).ink, 0);
    EXPECT_NEAR(at(0.625).traced, 0.5, 1e-9);
    EXPECT_NEAR(at(0.3125).traced, easeInEaseOut(0.25), 1e-9);
    EXPECT_EQ(at(0.875).ink, 0);
    EXPECT_NEAR(at(0.875 + 0.5625 / 2).ink, 0.5, 1e-9);
    EXPECT_EQ(at(1.25).traced, 1);
    EXPECT_NEAR(at(1.25).ink, 0.375 / 0.5625, 1e-9);
    EXPECT_EQ(at(1.4375).ink, 1);
    EXPECT_DOUBLE_EQ(handwritingDuration(), 1.4375);
}

TEST(Motion, NaNCountsAsTheStart) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const Motion& motion : {fade(), rise(), blur()}) {
        EXPECT_EQ(motion.effectsAt(nan), motion.effectsAt(0));
    }
    EXPECT_EQ(penProgress(nan), penProgress(0));
}

TEST(TypedCharacters, AreTwentySixASecondTruncated) {
    EXPECT_EQ(typedCharacters(-3, 30), 0);
    EXPECT_EQ(typedCharacters(0.55 - 0.55, 30), 0);
    EXPECT_EQ(typedCharacters(0.6 - 0.55, 30), 1);
    EXPECT_EQ(typedCharacters(1.0 - 0.55, 30), 11);
    EXPECT_EQ(typedCharacters(1.0 / 26, 30), 1);
    EXPECT_EQ(typedCharacters(1.153, 30), 29);
    EXPECT_EQ(typedCharacters(1.154, 30), 30);
    EXPECT_EQ(typedCharacters(1e9, 30), 30);
    EXPECT_EQ(typedCharacters(5, 0), 0);
}

TEST(TypedCharacters, TheLineIsCompleteExactlyAfterItsDuration) {
    for (qint64 length = 0; length < 300; ++length) {
        const double end = typingDuration(length);
        EXPECT_EQ(typedCharacters(end, length), length);
        EXPECT_NEAR(end, static_cast<double>(length) / 26, 1e-9);
    }
}

TEST(TypedCharactersDeathTest, AnUncountableTimeIsFatal) {
    EXPECT_DEATH(typedCharacters(std::numeric_limits<double>::quiet_NaN(), 3), "cannot be typed");
    EXPECT_DEATH(typedCharacters(std::numeric_limits<double>::infinity(), 3), "cannot be typed");
    EXPECT_DEATH(typedCharacters(-std::numeric_limits<double>::infinity(), 3), "cannot be typed");
    EXPECT_DEATH(typedCharacters(1e18, 3), "cannot be typed");
}

} // namespace
