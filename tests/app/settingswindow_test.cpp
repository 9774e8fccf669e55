// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/settingswindow.h"

#include "platform/null/nullplatform.h"

#include <QTest>
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

// A window around a view of the size of the settings.
struct Window {
    Window() {
        view->setFixedWidth(520);
        view->setMaximumHeight(545);
        window = std::make_unique<SettingsWindow>(view, *platform.floater);
    }

    Platform platform = makeNullPlatform();
    QWidget* view = new QWidget;
    std::unique_ptr<SettingsWindow> window;
};

TEST(SettingsWindow, HasTheSizeOfItsView) {
    const Window one;
    one.window->place({0, 0, 1280, 700});
    EXPECT_EQ(one.window->size(), QSize(520, 545));
}

TEST(SettingsWindow, IsAsHighAsALowScreenAllows) {
    const Window one;
    const QRect available(0, 30, 1024, 480);
    one.window->place(available);
    EXPECT_TRUE(available.contains(one.window->geometry()));
    one.window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(one.window.get()));
    EXPECT_LE(one.window->frameGeometry().height(), available.height());
    EXPECT_EQ(one.view->width(), 520);
    EXPECT_EQ(one.view->height(), one.window->height());
}

TEST(SettingsWindow, IsPlacedOnceHoweverOftenItIsPainted) {
    const Window one;
    one.window->place({0, 0, 1280, 700});
    one.window->grab();
    one.window->grab();
    QCoreApplication::processEvents();
    EXPECT_EQ(one.window->size(), QSize(520, 545));
}

TEST(SettingsWindow, BecomesHigherAgain) {
    const Window one;
    one.window->place({0, 0, 1024, 480});
    one.window->fitInto({0, 0, 1024, 900});
    EXPECT_EQ(one.window->size(), QSize(520, 545));
}

} // namespace
} // namespace morrowleaf
