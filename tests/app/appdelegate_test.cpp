// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/swatch.h"
#include "tests/app/appdelegatefixture.h"

namespace morrowleaf {
namespace {

TEST_F(AppDelegateTest, LaunchRegistersDefaultsAndShowsOnce) {
    launch();
    EXPECT_EQ(store.real(K::dismiss), 15);
    EXPECT_EQ(showings(), 1);
    EXPECT_EQ(delegate->settingsWindow(), nullptr);
    EXPECT_EQ(top().setup.level, WindowLevel::ScreenSaver);
    EXPECT_EQ(top().setup.hold, InputHold::KeyboardAndMouse);
    EXPECT_EQ(top().fronts, 1);
    EXPECT_EQ(top().window->geometry(), QGuiApplication::primaryScreen()->geometry());
    EXPECT_EQ(content()->size(), top().window->size());
}

TEST_F(AppDelegateTest, LaunchShowsEvenWithShowOnWakeOff) {
    store.set(K::showOnWake, false);
    launch();
    EXPECT_EQ(showings(), 1);
    delegate->dismiss(false);
    timing.pass(60);
    wake();
    EXPECT_EQ(showings(), 1);
    delegate->show();
    EXPECT_EQ(showings(), 2);
}

TEST_F(AppDelegateTest, LaunchWithSettingsOpensTheirWindowInstead) {
    launch({u"morrowleaf"_s, u"--unknown"_s, u"--settings"_s});
    EXPECT_EQ(showings(), 0);
    ASSERT_NE(delegate->settingsWindow(), nullptr);
    EXPECT_TRUE(delegate->settingsWindow()->isVisible());
    // Nothing was shown yet, so the throttle does not hold back a wake.
    wake();
    EXPECT_EQ(showings(), 1);
}

TEST_F(AppDelegateTest, SettingsArgumentIsMatchedWhole) {
    launch({u"morrowleaf"_s, u"--settings=1"_s, u"--Settings"_s});
    EXPECT_EQ(showings(), 1);
}

TEST_F(AppDelegateTest, FadesInOverItsTimeAndCurve) {
    launch();
    EXPECT_EQ(delegate->window()->alpha(), 0);
    ASSERT_EQ(timing.animations, std::vector{0.55});
    timing.pass(0.275);
    EXPECT_NEAR(delegate->window()->alpha(), easeOut(0.5), 1e-6);
    timing.pass(0.275);
    EXPECT_EQ(delegate->window()->alpha(), 1);
}

TEST_F(AppDelegateTest, FadesOutFromWhereItStands) {
    launch();
    timing.pass(0.275);
    const auto* window = delegate->window();
    const double reached = window->alpha();
    delegate->dismiss(true);
    EXPECT_FALSE(isShown());
    EXPECT_EQ(timing.animations.back(), 0.45);
    EXPECT_EQ(top().outs, 0);
    timing.pass(0.225);
    EXPECT_NEAR(window->alpha(), reached * (1 - easeIn(0.5)), 1e-6);
    timing.pass(0.23);
    EXPECT_EQ(top().outs, 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(top().overlay, nullptr);
}

TEST_F(AppDelegateTest, DismissWithoutFadeHidesAtOnce) {
    launch();
    QSignalSpy ended(delegate.get(), &AppDelegate::showingEnded);
    delegate->dismiss(false);
    EXPECT_EQ(top().outs, 1);
    EXPECT_EQ(ended.count(), 1);
    EXPECT_EQ(timing.pending(), 0);
    delegate->dismiss(true);
    delegate->dismiss(false);
    EXPECT_EQ(top().outs, 1);
}

TEST_F(AppDelegateTest, ClosesByTimerOnce) {
    launch();
    EXPECT_EQ(timing.delays, std::vector{15.0});
    timing.pass(14.9);
    EXPECT_TRUE(isShown());
    timing.pass(0.2);
    EXPECT_FALSE(isShown());
    timing.pass(1);
    EXPECT_EQ(top().outs, 1);
    EXPECT_EQ(timing.pending(), 0);
}

TEST_F(AppDelegateTest, ClosesAfterTheSecondsAskedForButNeverBelowFive) {
    const std::vector<std::pair<QJsonValue, double>> cases{
        {2, 5}, {5, 5},         {5.5, 5.5},    {60, 60},      {-1, 5},
        {0, 5}, {u"soon"_s, 5}, {u"20"_s, 20}, {1e300, 1e300}};
    launch();
    for (const auto& [stored, seconds] : cases) {
        store.set(K::dismiss.key, stored);
        delegate->show();
        EXPECT_EQ(timing.delays.back(), seconds);
    }
}

TEST_F(AppDelegateTest, LeftAndRightClickClose) {
    for (const auto button : {Qt::LeftButton, Qt::RightButton}) {
        launch();
        click(button);
        EXPECT_FALSE(isShown());
    }
}

TEST_F(AppDelegateTest, MiddleClickAndWheelDoNotClose) {
    launch();
    click(Qt::MiddleButton);
    click(Qt::BackButton);
    QTest::mouseMove(content(), {5, 5});
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(content(), &wheel);
    EXPECT_TRUE(isShown());
}

TEST_F(AppDelegateTest, KeysCloseModifiersAloneAndReleasesDoNot) {
    launch();
    for (const auto key :
         {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_AltGr, Qt::Key_Super_L,
          Qt::Key_Super_R, Qt::Key_Hyper_L, Qt::Key_Hyper_R, Qt::Key_Mode_switch, Qt::Key_CapsLock,
          Qt::Key_NumLock, Qt::Key_ScrollLock, Qt::Key_unknown}) {
        press(key);
        EXPECT_TRUE(isShown()) << key;
    }
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier);
    QCoreApplication::sendEvent(top().window, &release);
    EXPECT_TRUE(isShown());
    press(Qt::Key_A);
    EXPECT_FALSE(isShown());
}

TEST_F(AppDelegateTest, KeysThatWorkTheMachineDoNotClose) {
    launch();
    for (const auto key : {Qt::Key_VolumeUp, Qt::Key_VolumeMute, Qt::Key_MediaTogglePlayPause,
                           Qt::Key_MonBrightnessUp, Qt::Key_KeyboardBrightnessDown}) {
        press(key);
        EXPECT_TRUE(isShown()) << key;
    }
}

TEST_F(AppDelegateTest, EveryOtherKeyClosesEvenOneWithoutAName) {
    for (const auto key : {Qt::Key_Return, Qt::Key_Tab, Qt::Key_F12, Qt::Key_Print, Qt::Key_Menu,
                           Qt::Key_Dead_Acute, Qt::Key_Multi_key, Qt::Key_Left}) {
        launch();
        press(key);
        EXPECT_FALSE(isShown()) << key;
    }
    launch();
    QKeyEvent letter(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(QChar(0x1E9E)));
    QCoreApplication::sendEvent(top().window, &letter);
    EXPECT_FALSE(isShown());
}

TEST_F(AppDelegateTest, ATouchClosesAsAClickDoes) {
    launch();
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    QTest::touchEvent(top().window, screen.get()).press(0, {20, 20}, top().window);
    EXPECT_FALSE(isShown());
}

TEST_F(AppDelegateTest, RepeatsOfAHeldKeyClose) {
    launch();
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
    QCoreApplication::sendEvent(top().window, &repeat);
    EXPECT_FALSE(isShown());
}

TEST_F(AppDelegateTest, ClosingEventsAreConsumed) {
    struct Counter final : QObject {
        bool eventFilter(QObject*, QEvent* e) override {
            seen += e->type() == QEvent::MouseButtonPress || e->type() == QEvent::KeyPress;
            return false;
        }
        int seen = 0;
    } counter;
    launch();
    content()->installEventFilter(&counter);
    click(Qt::LeftButton);
    EXPECT_EQ(counter.seen, 0);
    launch();
    content()->installEventFilter(&counter);
    content()->setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(counter.seen, 0);
}

TEST_F(AppDelegateTest, EventsOlderThanTheWindowDoNotClose) {
    desktop.frontTime = 0xFFFFFF00U;
    launch();
    const auto send = [this](quint64 timestamp) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
        event.setTimestamp(timestamp);
        QCoreApplication::sendEvent(top().window, &event);
    };
    send(0xFFFFFEFFU);
    EXPECT_TRUE(isShown());
    send(5); // after the clock has wrapped
    EXPECT_FALSE(isShown());
}

TEST_F(AppDelegateTest, EditingClosesByEscapeAlone) {
    launchAndClose();
    delegate->editAppearance();
    EXPECT_EQ(top().setup.level, WindowLevel::ScreenSaver);
    EXPECT_EQ(top().setup.hold, InputHold::KeyboardIfNeeded);
    ASSERT_NE(editor(), nullptr);
    click(Qt::LeftButton);
    click(Qt::RightButton);
    press(Qt::Key_A);
    timing.pass(600);
    EXPECT_TRUE(isShown());
    press(Qt::Key_Escape);
    EXPECT_FALSE(isShown());
    timing.pass(0.5);
    EXPECT_EQ(top().outs, 1);
}

TEST_F(AppDelegateTest, EscapeClosesAnOpenMenuFirst) {
    launchAndClose();
    delegate->editAppearance();
    QMenu menu;
    menu.addAction(u"entry"_s);
    menu.popup({10, 10});
    QTest::keyPress(&menu, Qt::Key_Escape);
    EXPECT_TRUE(isShown());
    EXPECT_FALSE(menu.isVisible());
    press(Qt::Key_Escape);
    EXPECT_FALSE(isShown());
}

TEST_F(AppDelegateTest, DoneClosesTheEditor) {
    launchAndClose();
    delegate->editAppearance();
    pressButton(top().window, u"Done"_s);
    EXPECT_FALSE(isShown());
    emit editor()->done(); // while the window fades out
    EXPECT_EQ(top().outs, 0);
    timing.pass(1);
    EXPECT_EQ(top().outs, 1);
}

TEST_F(AppDelegateTest, ReturnClosesTheEditor) {
    launchAndClose();
    delegate->editAppearance();
    top().window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(top().window, 60'000));
    QTest::keyClick(top().window->windowHandle(), Qt::Key_Return);
    EXPECT_FALSE(isShown());
}

TEST_F(AppDelegateTest, ADialogMayOutliveTheEditor) {
    launchAndClose();
    delegate->editAppearance();
    editor()->findChild<AddTile*>()->click();
    delegate.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    desktop.files->answer({.kind = FileAnswer::Kind::Chosen, .path = u"/late.png"_s});
    EXPECT_EQ(store.text(K::bgImage), u""_s);
}

TEST_F(AppDelegateTest, TheEditorLowersTheWindowForDialogs) {
    launchAndClose();
    delegate->editAppearance();
    editor()->findChild<AddTile*>()->click();
    EXPECT_EQ(desktop.files->asked, 1);
    EXPECT_EQ(top().levels, std::vector{WindowLevel::Normal});
    desktop.files->answer({.kind = FileAnswer::Kind::Cancelled, .path = {}});
    EXPECT_EQ(top().levels, (std::vector{WindowLevel::Normal, WindowLevel::ScreenSaver}));
}

TEST_F(AppDelegateTest, WhoeverLeavesIsNotHeld) {
    launch();
    emit desktop.platform.sessionEvents->willLeave();
    EXPECT_EQ(top().inputReleases, 1);
    EXPECT_TRUE(isShown());
    press(Qt::Key_A);
    EXPECT_FALSE(isShown());
    emit desktop.platform.sessionEvents->willLeave();
    EXPECT_EQ(top().inputReleases, 1);
}

TEST_F(AppDelegateTest, AShowingThatIsStillThereAfterALockGetsTheInputAgain) {
    launch();
    emit desktop.platform.sessionEvents->willLeave();
    EXPECT_EQ(top().inputRetakes, 0);
    unlock(); // too soon for another showing
    EXPECT_EQ(showings(), 1);
    EXPECT_EQ(top().inputRetakes, 1);
}

TEST_F(AppDelegateTest, PreviewHasNeitherMonitorNorTimer) {
    launchAndClose();
    const auto delays = timing.delays.size();
    delegate->present(true, false);
    EXPECT_EQ(top().setup.level, WindowLevel::Normal);
    EXPECT_EQ(top().setup.hold, InputHold::FocusOnly);
    EXPECT_EQ(editor(), nullptr);
    click(Qt::LeftButton);
    press(Qt::Key_Escape);
    timing.pass(100);
    EXPECT_TRUE(isShown());
    EXPECT_EQ(timing.delays.size(), delays);
}

} // namespace
} // namespace morrowleaf
