// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// What the controller leaves to a system that fades windows and draws behind them.

#include "tests/app/appdelegatefixture.h"

namespace morrowleaf {
namespace {

TEST_F(AppDelegateTest, AWindowThatTheSystemFadesKeepsItsPixels) {
    desktop.fadesWindows = true;
    launch();
    paintBlue();
    timing.pass(0.275);
    ASSERT_FALSE(top().alphas.empty());
    EXPECT_EQ(top().alphas.front(), 0);
    EXPECT_NEAR(top().alphas.back(), easeOut(0.5), 1e-6);
    EXPECT_EQ(delegate->window()->alpha(), top().alphas.back());
    EXPECT_EQ(top().window->grab().toImage().pixelColor(50, 50), QColor(Qt::blue));
    delegate->dismiss(true);
    timing.pass(0.5);
    EXPECT_EQ(top().alphas.back(), 0);
}

TEST_F(AppDelegateTest, TheSystemIsToldWhatToDrawBehindTheScreen) {
    desktop.seeThrough = SeeThrough::SystemGlass;
    store.set(K::transparency, 0.5);
    launch();
    top().window->grab();
    QCoreApplication::processEvents();
    ASSERT_FALSE(top().backdrops.empty());
    EXPECT_EQ(top().backdrops.back().kind, SystemBackdrop::Kind::Glass);
    store.set(K::transparency, 0.0);
    top().window->grab();
    QCoreApplication::processEvents();
    EXPECT_EQ(top().backdrops.back(), SystemBackdrop());
    EXPECT_EQ(desktop.captures, 1);
}

} // namespace
} // namespace morrowleaf
