// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Tests of showings beside what else the desktop has on the screen.
#include "tests/app/appdelegatefixture.h"

namespace morrowleaf {
namespace {

TEST_F(AppDelegateTest, WaitsUntilTheLockerHasLeftTheScreen) {
    launchAndClose();
    store.set(K::transparency, 0.5);
    desktop.lockerStays = true;
    unlock();
    wake(); // belongs to the same return of the user
    EXPECT_FALSE(isShown());
    EXPECT_TRUE(desktop.looksThrough);
    desktop.lockerLeaves();
    EXPECT_TRUE(isShown());
    EXPECT_EQ(showings(), 2);
    EXPECT_EQ(desktop.captures, 1);
    wake();
    EXPECT_EQ(showings(), 2);
}

TEST_F(AppDelegateTest, ShowsNothingIfTheScreenIsLockedAgainMeanwhile) {
    launchAndClose();
    desktop.lockerStays = true;
    wake();
    emit desktop.platform.sessionEvents->willLeave();
    desktop.lockerLeaves();
    EXPECT_FALSE(isShown());
    EXPECT_EQ(showings(), 1);
}

TEST_F(AppDelegateTest, ShowsOnceIfTheUserAsksWhileTheLockerLeaves) {
    launchAndClose();
    desktop.lockerStays = true;
    unlock();
    delegate->show();
    EXPECT_EQ(showings(), 2);
    desktop.lockerLeaves();
    EXPECT_EQ(showings(), 2);
}

} // namespace
} // namespace morrowleaf
