// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/settingswindow.h"

#include <gtest/gtest.h>

namespace morrowleaf {
namespace {

const QSize frame(530, 580);

TEST(SettingsWindowOrigin, StandsLeftWithItsBottomBelowTheMiddle) {
    // The middle of 40...1480 is 760: bottom edge at 1160.
    EXPECT_EQ(settingsWindowOrigin({0, 40, 2560, 1440}, frame), QPoint(32, 1160 - 580));
}

TEST(SettingsWindowOrigin, FollowsTheScreen) {
    EXPECT_EQ(settingsWindowOrigin({1920, -200, 2560, 1440}, frame),
              QPoint(1952, -200 + 720 + 400 - 580));
}

TEST(SettingsWindowOrigin, MovesUpToLieWholeOnALowScreen) {
    EXPECT_EQ(settingsWindowOrigin({0, 28, 1366, 740}, frame), QPoint(32, 28 + 740 - 580));
}

TEST(SettingsWindowOrigin, KeepsTheTitleOnATinyScreen) {
    EXPECT_EQ(settingsWindowOrigin({10, 20, 400, 300}, frame), QPoint(10, 20));
}

} // namespace
} // namespace morrowleaf
