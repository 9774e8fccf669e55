// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/stagger.h"

#include <gtest/gtest.h>

using namespace morrowleaf;

namespace {

TEST(Stagger, LinesFollowOneAnother) {
    EXPECT_DOUBLE_EQ(lineDelay(TextAnim::Handwrite, 0), 0.4);
    EXPECT_DOUBLE_EQ(lineDelay(TextAnim::Handwrite, 3), 3.55);
    for (const TextAnim kind :
         {TextAnim::Fade, TextAnim::Typewriter, TextAnim::Rise, TextAnim::Blur}) {
        EXPECT_DOUBLE_EQ(lineDelay(kind, 0), 0.55);
        EXPECT_DOUBLE_EQ(lineDelay(kind, 3), 1.03);
    }
}

TEST(Stagger, TheWholeQuotationIsRevealedAfterTheLastLine) {
    EXPECT_DOUBLE_EQ(revealDone(TextAnim::Handwrite, 0), 0.9);
    EXPECT_DOUBLE_EQ(revealDone(TextAnim::Handwrite, 3), 4.05);
    EXPECT_DOUBLE_EQ(revealDone(TextAnim::Fade, 0), 0.55);
    EXPECT_DOUBLE_EQ(revealDone(TextAnim::Typewriter, 3), 1.03);
}

} // namespace
