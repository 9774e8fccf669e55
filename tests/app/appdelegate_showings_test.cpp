// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/swatch.h"
#include "tests/app/appdelegatefixture.h"

#include <QAccessible>
#include <QCheckBox>
#include <QFileDialog>
#include <QPointer>
#include <QWindow>

namespace morrowleaf {
namespace {

bool hasGlassSwitch(const Inspector& editor) {
    const auto switches = editor.findChildren<QCheckBox*>();
    return std::any_of(switches.begin(), switches.end(),
                       [](const QCheckBox* s) { return s->text() == "Liquid Glass"_L1; });
}

TEST_F(AppDelegateTest, SecondPresentReplacesWithoutFade) {
    launch();
    timing.pass(10);
    delegate->show();
    EXPECT_EQ(showings(), 2);
    EXPECT_EQ(desktop.overlays[0]->outs, 1);
    timing.pass(6); // when the first timer would have fired
    EXPECT_TRUE(isShown());
    timing.pass(9.1);
    EXPECT_FALSE(isShown());
}

TEST_F(AppDelegateTest, PresentDuringAFadeOutLetsItFinish) {
    launch();
    timing.pass(1);
    delegate->dismiss(true);
    timing.pass(0.2);
    QSignalSpy ended(delegate.get(), &AppDelegate::showingEnded);
    delegate->show();
    EXPECT_EQ(desktop.overlays[0]->outs, 0);
    EXPECT_EQ(desktop.overlays[1]->fronts, 1);
    timing.pass(0.3);
    EXPECT_EQ(desktop.overlays[0]->outs, 1);
    EXPECT_TRUE(isShown());
    EXPECT_EQ(ended.count(), 0);
    // The monitor of the new showing is active.
    press(Qt::Key_A);
    EXPECT_FALSE(isShown());
    timing.pass(0.5);
    EXPECT_EQ(ended.count(), 1);
}

// A window that waits for its place would appear during the fade.
TEST_F(AppDelegateTest, WhatIsNotInSightYetEndsWithoutAFade) {
    launch();
    top().window->hide();
    delegate->dismiss(true);
    EXPECT_EQ(top().outs, 1);
    EXPECT_FALSE(isShown());
}

TEST_F(AppDelegateTest, EveryTriggerShowsOnce) {
    launchAndClose();
    wake();
    EXPECT_EQ(showings(), 2);
    unlock();
    activate();
    EXPECT_EQ(showings(), 2);
    timing.pass(60);
    unlock();
    EXPECT_EQ(showings(), 3);
    timing.pass(60);
    activate();
    EXPECT_EQ(showings(), 4);
}

TEST_F(AppDelegateTest, TheThrottleIsStrict) {
    launch();
    timing.jump(8.0);
    wake();
    EXPECT_EQ(showings(), 1);
    timing.jump(0.001);
    wake();
    EXPECT_EQ(showings(), 2);
}

TEST_F(AppDelegateTest, ShowingByHandRestartsTheThrottle) {
    launchAndClose();
    delegate->show();
    delegate->dismiss(false);
    timing.jump(7.9);
    wake();
    EXPECT_EQ(showings(), 2);
}

TEST_F(AppDelegateTest, ThrottledTriggersDoNotRestartTheThrottle) {
    launch();
    timing.jump(7);
    wake();
    timing.jump(2);
    wake();
    EXPECT_EQ(showings(), 2);
}

TEST_F(AppDelegateTest, WithoutAScreenNothingIsShownYetTheThrottleRuns) {
    launchAndClose();
    desktop.hasScreen = false;
    delegate->show();
    EXPECT_EQ(showings(), 1);
    EXPECT_FALSE(isShown());
    desktop.hasScreen = true;
    timing.jump(8);
    wake();
    EXPECT_EQ(showings(), 1);
    timing.jump(0.1);
    wake();
    EXPECT_EQ(showings(), 2);
}

TEST_F(AppDelegateTest, WithoutAScreenTheOldShowingStillGoes) {
    launch();
    desktop.hasScreen = false;
    delegate->show();
    EXPECT_EQ(top().outs, 1);
    EXPECT_FALSE(isShown());
}

TEST_F(AppDelegateTest, AVanishedScreenEndsTheShowing) {
    launch();
    emit top().overlay->lost();
    EXPECT_TRUE(isShown());
    QCoreApplication::processEvents();
    EXPECT_FALSE(isShown());
    EXPECT_EQ(top().outs, 1);
    EXPECT_EQ(timing.pending(), 0);
}

TEST_F(AppDelegateTest, AVanishedScreenEndsAFadeOut) {
    launch();
    delegate->dismiss(true);
    auto record = desktop.overlays.back();
    emit record->overlay->lost();
    QCoreApplication::processEvents();
    EXPECT_EQ(record->outs, 1);
    timing.pass(1);
    EXPECT_EQ(record->outs, 1);
}

TEST_F(AppDelegateTest, DesktopIsCapturedOnlyWhereItIsSeen) {
    desktop.picture = QImage(8, 8, QImage::Format_RGB32);
    launch();
    EXPECT_EQ(desktop.captures, 0);
    EXPECT_EQ(content()->desktopView().kind, DesktopView::Kind::Plain);
    store.set(K::transparency, 0.5);
    delegate->show();
    EXPECT_EQ(desktop.captures, 1);
    EXPECT_EQ(content()->desktopView().kind, DesktopView::Kind::Captured);
    EXPECT_FALSE(content()->desktopView().picture.isNull());
    store.set(K::transparency, 0.0);
    delegate->editAppearance();
    EXPECT_EQ(content()->desktopView().kind, DesktopView::Kind::Captured);
}

TEST_F(AppDelegateTest, TheEditorKnowsWhetherGlassCanBeDrawn) {
    desktop.picture = QImage(8, 8, QImage::Format_RGB32);
    launch();
    delegate->editAppearance();
    EXPECT_TRUE(hasGlassSwitch(*editor()));
    desktop.picture = {};
    for (const auto through : {SeeThrough::Plain, SeeThrough::Blurred, SeeThrough::No}) {
        desktop.seeThrough = through;
        delegate->editAppearance();
        EXPECT_FALSE(hasGlassSwitch(*editor()));
    }
}

TEST_F(AppDelegateTest, EscapeInTheSettingsEndsTheEditingAndNothingElse) {
    launchAndClose();
    delegate->openSettings();
    pressButton(delegate->settingsWindow(), u"Edit Appearance…"_s);
    auto* settings = const_cast<QWidget*>(delegate->settingsWindow());
    auto* field = settings->findChild<QLineEdit*>();
    QTest::keyClicks(field, u"kept"_s);
    EXPECT_TRUE(isShown());
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_FALSE(isShown());
    EXPECT_TRUE(settings->isVisible());
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_TRUE(settings->isVisible());
    EXPECT_EQ(field->text(), u"kept"_s);
}

TEST_F(AppDelegateTest, WithoutACaptureTheNextRungHolds) {
    store.set(K::transparency, 0.5);
    desktop.seeThrough = SeeThrough::Blurred;
    launch();
    EXPECT_EQ(content()->desktopView().kind, DesktopView::Kind::LiveBlur);
    desktop.seeThrough = SeeThrough::Plain;
    delegate->show();
    EXPECT_EQ(content()->desktopView().kind, DesktopView::Kind::Plain);
    desktop.seeThrough = SeeThrough::No;
    delegate->show();
    EXPECT_EQ(content()->desktopView().kind, DesktopView::Kind::Nothing);
}

TEST_F(AppDelegateTest, AnOpaqueWindowFadesOverTheDesktop) {
    desktop.seeThrough = SeeThrough::No;
    desktop.picture = QImage(QGuiApplication::primaryScreen()->size(), QImage::Format_RGB32);
    desktop.picture.fill(Qt::green);
    launch();
    paintBlue();
    auto* window = desktop.overlays.back()->window;
    EXPECT_EQ(window->grab().toImage().pixelColor(50, 50), QColor(Qt::green));
    timing.pass(0.1);
    const QColor between = window->grab().toImage().pixelColor(50, 50);
    EXPECT_GT(between.green(), 20);
    EXPECT_GT(between.blue(), 20);
    timing.pass(0.5);
    EXPECT_EQ(window->grab().toImage().pixelColor(50, 50), QColor(Qt::blue));
}

TEST_F(AppDelegateTest, ASeeThroughWindowFadesByItsAlpha) {
    launch();
    paintBlue();
    QWidget* window = top().window;
    const auto pixel = [window] {
        QImage image(window->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        window->render(&image);
        return image.pixelColor(50, 50);
    };
    EXPECT_EQ(pixel().alpha(), 0);
    timing.pass(0.275);
    EXPECT_NEAR(pixel().alphaF(), easeOut(0.5), 0.01);
    EXPECT_EQ(pixel().blue(), 255);
    timing.pass(0.3);
    EXPECT_EQ(pixel().alpha(), 255);
}

TEST_F(AppDelegateTest, SettingsWindowIsMadeOnceAndKept) {
    launchAndClose();
    delegate->openSettings();
    auto* window = const_cast<QWidget*>(delegate->settingsWindow());
    auto* view = window->findChild<SettingsView*>();
    const QSignalSpy quits(delegate.get(), &AppDelegate::quitRequested);
    EXPECT_EQ(window->windowTitle(), u"Morrowleaf Settings"_s);
    EXPECT_EQ(window->size(), QSize(520, 545));
    EXPECT_TRUE(window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_FALSE(window->windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
    EXPECT_FALSE(window->windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
    EXPECT_EQ(window->minimumSize(), window->maximumSize());
    EXPECT_FALSE(window->windowIcon().pixmap(32, 32).isNull());
    window->findChild<QLineEdit*>()->setText(u"kept"_s);
    window->close();
    EXPECT_FALSE(window->isVisible());
    delegate->openSettings();
    EXPECT_EQ(delegate->settingsWindow(), window);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->findChild<QLineEdit*>()->text(), u"kept"_s);
    EXPECT_EQ(window->findChildren<SettingsView*>(), QList{view});
    EXPECT_EQ(quits.count(), 0);
}

TEST_F(AppDelegateTest, SettingsWindowGivesWayToADialogWhileItIsOpen) {
    launchAndClose();
    delegate->openSettings();
    const QWindow* handle = delegate->settingsWindow()->windowHandle();
    const auto standsAbove = [handle] {
        return handle->flags().testFlag(Qt::WindowStaysOnTopHint);
    };
    delegate->editAppearance();
    editor()->findChild<AddTile*>()->click();
    EXPECT_FALSE(standsAbove());
    EXPECT_TRUE(handle->isVisible());
    desktop.files->answer({.kind = FileAnswer::Kind::Cancelled, .path = {}});
    EXPECT_TRUE(standsAbove());

    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    editor()->findChild<AddTile*>()->click();
    EXPECT_FALSE(standsAbove());
    delegate->dismiss(false);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(standsAbove());
}

TEST_F(AppDelegateTest, SettingsThatOpenBesideADialogLeaveItReachable) {
    launchAndClose();
    delegate->editAppearance();
    editor()->findChild<AddTile*>()->click();
    delegate->openSettings();
    const QWindow* handle = delegate->settingsWindow()->windowHandle();
    EXPECT_FALSE(handle->flags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(handle->isVisible());
    desktop.files->answer({.kind = FileAnswer::Kind::Cancelled, .path = {}});
    EXPECT_TRUE(handle->flags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(AppDelegateTest, WithoutADialogOfTheDesktopThereIsOneThatNoThemeReplaces) {
    launchAndClose();
    delegate->editAppearance();
    editor()->findChild<AddTile*>()->click();
    desktop.files->answer({.kind = FileAnswer::Kind::Unavailable, .path = {}});
    EXPECT_NE(qobject_cast<QFileDialog*>(QApplication::activeModalWidget()), nullptr);
    EXPECT_TRUE(QCoreApplication::testAttribute(Qt::AA_DontUseNativeDialogs));
    delegate->dismiss(false);
}

TEST_F(AppDelegateTest, SettingsWindowComesBackOutOfAnIcon) {
    launchAndClose();
    delegate->openSettings();
    auto* window = const_cast<QWidget*>(delegate->settingsWindow());
    window->showMinimized();
    delegate->openSettings();
    EXPECT_FALSE(window->isMinimized());
    EXPECT_TRUE(window->isVisible());
}

TEST_F(AppDelegateTest, WindowsAreWindowsToAScreenReader) {
    launch();
    delegate->openSettings();
    const auto* quote = QAccessible::queryAccessibleInterface(top().window);
    EXPECT_EQ(quote->role(), QAccessible::Window);
    EXPECT_EQ(quote->text(QAccessible::Name), u"Morrowleaf"_s);
    const auto* settings =
        QAccessible::queryAccessibleInterface(const_cast<QWidget*>(delegate->settingsWindow()));
    EXPECT_EQ(settings->role(), QAccessible::Window);
    EXPECT_EQ(settings->text(QAccessible::Name), u"Morrowleaf Settings"_s);
}

TEST_F(AppDelegateTest, SettingsWindowOpensShowings) {
    launchAndClose();
    delegate->openSettings();
    pressButton(delegate->settingsWindow(), u"Show Today's Quote"_s);
    EXPECT_EQ(showings(), 2);
    EXPECT_EQ(editor(), nullptr);
    pressButton(delegate->settingsWindow(), u"Edit Appearance…"_s);
    EXPECT_EQ(showings(), 3);
    EXPECT_NE(editor(), nullptr);
    EXPECT_TRUE(delegate->settingsWindow()->isVisible());
    const QSignalSpy quits(delegate.get(), &AppDelegate::quitRequested);
    pressButton(delegate->settingsWindow(), u"Quit"_s);
    EXPECT_EQ(quits.count(), 1);
}

TEST_F(AppDelegateTest, StatusItemComesWithItsHostAndAnewWithAnother) {
    launch();
    EXPECT_EQ(delegate->statusItem(), nullptr);
    emit desktop.platform.trayHost->appeared();
    const QPointer<const StatusItem> item = delegate->statusItem();
    ASSERT_TRUE(item);
    emit desktop.platform.trayHost->appeared();
    EXPECT_TRUE(item.isNull());
    EXPECT_NE(delegate->statusItem(), nullptr);
}

TEST_F(AppDelegateTest, MenuEntriesInOrder) {
    launchAndClose();
    emit desktop.platform.trayHost->appeared();
    const auto entries = delegate->statusItem()->menu().actions();
    QStringList texts;
    for (const auto* entry : entries) {
        texts << (entry->isSeparator() ? u"-"_s
                                       : entry->text() + u'|' + entry->shortcut().toString());
    }
    EXPECT_EQ(texts, (QStringList{u"Show Today's Quote|Ctrl+S"_s, u"Edit Appearance…|Ctrl+E"_s,
                                  u"Settings…|Ctrl+,"_s, u"-"_s, u"Quit|Ctrl+Q"_s}));
    entries[0]->trigger();
    EXPECT_EQ(showings(), 2);
    EXPECT_EQ(editor(), nullptr);
    entries[1]->trigger();
    EXPECT_NE(editor(), nullptr);
    entries[2]->trigger();
    EXPECT_TRUE(delegate->settingsWindow()->isVisible());
    const QSignalSpy quits(delegate.get(), &AppDelegate::quitRequested);
    entries[4]->trigger();
    EXPECT_EQ(quits.count(), 1);
}

TEST_F(AppDelegateTest, GoesWithEverythingStillRunning) {
    launch();
    timing.pass(0.2);
    delegate->dismiss(true);
    delegate->show();
    delegate->openSettings();
    delegate.reset();
    // At once, because the objects that the windows draw from are destroyed next.
    EXPECT_EQ(desktop.overlays[0]->overlay, nullptr);
    EXPECT_EQ(desktop.overlays[1]->overlay, nullptr);
    timing.pass(20);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    wake();
    EXPECT_EQ(showings(), 2);
}

} // namespace
} // namespace morrowleaf
