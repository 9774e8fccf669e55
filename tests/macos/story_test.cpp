// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// What a user of the program on macOS lives through.

#include "app/application.h"
#include "base/curves.h"
#include "settingsui/swatch.h"
#include "tests/macos/storyfixture.h"
#include "tests/platform/signalfromoutside.h"

#include <QFile>
#include <QKeyEvent>
#include <QMenu>
#include <QScreen>
#include <QSignalSpy>

#include <csignal>

namespace morrowleaf {
namespace {

constexpr unsigned short escape = 53; // codes of keys
constexpr unsigned short letter = 0;

// The displays of the fixture, as the toolkit counts.
const bool hasTwoDisplays = [] {
    static const QTemporaryDir folder;
    QFile file(folder.filePath(u"displays.json"_s));
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    file.write(R"({"screens": [
        {"name": "first", "x": 0, "y": 0, "width": 1440, "height": 900, "dpr": 1,
         "logicalDpi": 96, "logicalBaseDpi": 96},
        {"name": "second", "x": 1440, "y": -360, "width": 1280, "height": 720, "dpr": 2,
         "logicalDpi": 96, "logicalBaseDpi": 96}]})");
    return qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(file.fileName()));
}();

TEST_F(MacStory, TheLaunchCoversTheMainDisplayAboveEverything) {
    launch();
    EXPECT_EQ(window().level, 1000);
    EXPECT_EQ(window().behaviour, 321U);
    EXPECT_TRUE(window().isOrderedIn);
    EXPECT_TRUE(window().isKey);
    EXPECT_FALSE(window().isOpaque);
    EXPECT_TRUE(window().isClear);
    EXPECT_FALSE(window().hasShadow);
    EXPECT_EQ(window().width, 1440);
    EXPECT_EQ(window().height, 900);
    EXPECT_EQ(macfakes::programCalls(), std::vector<std::string>{"activate, ignoring others"});
}

TEST_F(MacStory, TheWindowFadesInAndOutAsAWhole) {
    launch();
    EXPECT_EQ(window().alpha, 0);
    timing.pass(0.275);
    EXPECT_NEAR(window().alpha, easeOut(0.5), 1e-6);
    timing.pass(0.3);
    EXPECT_EQ(window().alpha, 1);
    macfakes::Window& leaving = window();
    delegate->dismiss(true);
    timing.pass(0.225);
    EXPECT_NEAR(leaving.alpha, 1 - easeIn(0.5), 1e-6);
    EXPECT_TRUE(leaving.isOrderedIn);
    timing.pass(0.3);
    EXPECT_EQ(leaving.alpha, 0);
    EXPECT_FALSE(leaving.isOrderedIn);
}

TEST_F(MacStory, AWakeAndItsUnlockShowTheQuotationOnce) {
    launchAndClose();
    macfakes::postFromWorkspace("NSWorkspaceDidWakeNotification");
    ASSERT_TRUE(isShown());
    const QuoteWindow* first = delegate->window();
    timing.pass(2);
    macfakes::postToEverybody("com.apple.screenIsUnlocked", false);
    macfakes::postFromWorkspace("NSWorkspaceSessionDidBecomeActiveNotification");
    EXPECT_EQ(delegate->window(), first);
    delegate->dismiss(false);
    timing.pass(6.1); // 8.1 seconds after the showing began
    macfakes::postToEverybody("com.apple.screenIsUnlocked", false);
    EXPECT_TRUE(isShown());
}

TEST_F(MacStory, AWakeUnderTheLockIsKeptUntilTheUnlock) {
    launchAndClose();
    macfakes::setScreenLocked(true);
    macfakes::postToEverybody("com.apple.screenIsLocked", false);
    macfakes::postFromWorkspace("NSWorkspaceWillSleepNotification");
    macfakes::postFromWorkspace("NSWorkspaceDidWakeNotification");
    EXPECT_FALSE(isShown());
    macfakes::setScreenLocked(false);
    macfakes::postToEverybody("com.apple.screenIsUnlocked", false);
    EXPECT_TRUE(isShown());
}

TEST_F(MacStory, AWakeShowsAtOnceIfTheUnlockHasPassedUnnoticed) {
    launchAndClose();
    macfakes::postToEverybody("com.apple.screenIsLocked", false);
    macfakes::postFromWorkspace("NSWorkspaceDidWakeNotification");
    EXPECT_TRUE(isShown());
}

TEST_F(MacStory, AWakeDuringAnotherUsersSessionIsKeptUntilTheReturn) {
    launchAndClose();
    macfakes::postFromWorkspace("NSWorkspaceSessionDidResignActiveNotification");
    macfakes::postFromWorkspace("NSWorkspaceDidWakeNotification");
    EXPECT_FALSE(isShown());
    macfakes::postFromWorkspace("NSWorkspaceSessionDidBecomeActiveNotification");
    EXPECT_TRUE(isShown());
}

TEST_F(MacStory, WithShowOnWakeOffOnlyTheUserShowsIt) {
    store.set(K::showOnWake, false);
    launchAndClose();
    macfakes::postFromWorkspace("NSWorkspaceDidWakeNotification");
    EXPECT_FALSE(isShown());
    delegate->show();
    EXPECT_TRUE(isShown());
}

TEST_F(MacStory, ClicksAndKeysCloseItAndGoNoFurther) {
    for (const auto& input :
         {+[] { return macfakes::pressButton(macfakes::Button::Left); },
          +[] { return macfakes::pressButton(macfakes::Button::Right); },
          +[] { return macfakes::pressKey(letter); }, +[] { return macfakes::pressKey(escape); }}) {
        launch();
        EXPECT_TRUE(input());
        EXPECT_FALSE(isShown());
        EXPECT_FALSE(input());
        settle();
    }
}

TEST_F(MacStory, OtherButtonsDoNotCloseIt) {
    launch();
    EXPECT_FALSE(macfakes::pressButton(macfakes::Button::Other));
    EXPECT_TRUE(isShown());
}

TEST_F(MacStory, ItClosesByItselfAfterTheTime) {
    launch();
    timing.pass(14.9);
    EXPECT_TRUE(isShown());
    timing.pass(0.2);
    EXPECT_FALSE(isShown());
    settle();
    EXPECT_FALSE(macfakes::pressKey(letter));
}

TEST_F(MacStory, IfInputCannotBeTappedTheToolkitsEventsCloseIt) {
    macfakes::refuseMonitors();
    launch();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QCoreApplication::sendEvent(const_cast<QuoteWindow*>(delegate->window()), &press);
    EXPECT_FALSE(isShown());
}

TEST_F(MacStory, TheEditorClosesByEscapeAlone) {
    launchAndClose();
    delegate->editAppearance();
    ASSERT_NE(editor(), nullptr);
    EXPECT_FALSE(macfakes::pressKey(letter));
    EXPECT_FALSE(macfakes::pressButton(macfakes::Button::Left));
    timing.pass(600);
    EXPECT_TRUE(isShown());
    EXPECT_TRUE(macfakes::pressKey(escape));
    EXPECT_FALSE(isShown());
}

TEST_F(MacStory, EscapeBelongsToAMenuInFrontOfTheEditor) {
    launchAndClose();
    delegate->editAppearance();
    QMenu menu;
    menu.addAction(u"entry"_s);
    menu.popup({10, 10});
    EXPECT_FALSE(macfakes::pressKey(escape));
    EXPECT_TRUE(isShown());
    menu.close();
    EXPECT_TRUE(macfakes::pressKey(escape));
}

TEST_F(MacStory, TheFilePanelComesInFrontOfBothWindows) {
    launchAndClose();
    delegate->openSettings();
    settle();
    EXPECT_EQ(settings().level, 3);
    delegate->editAppearance();
    editor()->findChild<AddTile*>()->click();
    EXPECT_EQ(files->asked, 1);
    EXPECT_EQ(window().level, 0);
    EXPECT_EQ(settings().level, 0);
    window().isKey = false;
    files->answer({.kind = FileAnswer::Kind::Cancelled, .path = {}});
    EXPECT_EQ(window().level, 1000);
    EXPECT_TRUE(window().isKey);
    EXPECT_EQ(settings().level, 3);
}

TEST_F(MacStory, TheSettingsStayAboveOrdinaryWindows) {
    launch({u"morrowleaf"_s, u"--settings"_s});
    settle();
    EXPECT_EQ(settings().level, 3);
    // What the toolkit does when the program becomes inactive and active.
    for (const auto state : {Qt::ApplicationInactive, Qt::ApplicationActive}) {
        settings().level = 0;
        emit qGuiApp->applicationStateChanged(state);
        settle();
        EXPECT_EQ(settings().level, 3);
    }
    EXPECT_FALSE(delegate->settingsWindow()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(MacStory, TheLoginItemHasEveryState) {
    LoginItem& item = *platform.loginItem;
    EXPECT_EQ(item.status(), LoginItem::Status::NotRegistered);
    EXPECT_EQ(registerLogin(item), u"login item: enabled"_s);
    EXPECT_EQ(item.status(), LoginItem::Status::Enabled);
    EXPECT_EQ(item.unregisterItem(), std::nullopt);
    EXPECT_EQ(item.status(), LoginItem::Status::NotRegistered);
    macfakes::setLoginStatus(2); // the user has denied it
    EXPECT_EQ(registerLogin(item), u"login item: registered, pending approval"_s);
    EXPECT_EQ(item.status(), LoginItem::Status::RequiresApproval);
    macfakes::setLoginStatus(3); // not in a bundle
    EXPECT_EQ(item.status(), LoginItem::Status::NotRegistered);
    macfakes::refuseLogin("Der Vorgang ist nicht zul\xC3\xA4ssig.");
    EXPECT_EQ(registerLogin(item), u"login item failed: Der Vorgang ist nicht zulässig."_s);
}

TEST_F(MacStory, OnlyTheDisplayWithTheFocusIsCovered) {
    macfakes::setMainDisplay(7);
    launch();
    EXPECT_EQ(delegate->window()->screen()->name(), u"second"_s);
    EXPECT_EQ(delegate->window()->geometry(), QRect(1440, -360, 1280, 720));
    EXPECT_EQ(window().x, 1440);
    EXPECT_EQ(window().y, 540);
    EXPECT_EQ(window().width, 1280);
    EXPECT_EQ(window().height, 720);
    EXPECT_EQ(delegate->window()->screen()->devicePixelRatio(), 2);
}

TEST_F(MacStory, WithoutADisplayNothingIsShown) {
    macfakes::setMainDisplay(0);
    launch();
    EXPECT_FALSE(isShown());
    macfakes::setMainDisplay(1);
    macfakes::postFromWorkspace("NSWorkspaceDidWakeNotification");
    EXPECT_FALSE(isShown()); // within 8 seconds of the attempt
    timing.pass(9);
    macfakes::postFromWorkspace("NSWorkspaceDidWakeNotification");
    EXPECT_TRUE(isShown());
}

TEST_F(MacStory, ADisplayThatIsLostTakesTheShowingWithIt) {
    macfakes::setMainDisplay(7);
    launch();
    macfakes::Window& gone = window();
    macfakes::removeDisplay(7);
    emit qGuiApp->screenRemoved(delegate->window()->screen());
    settle();
    EXPECT_FALSE(isShown());
    EXPECT_FALSE(gone.isOrderedIn);
    timing.pass(9);
    macfakes::postFromWorkspace("NSWorkspaceDidWakeNotification");
    ASSERT_TRUE(isShown());
    EXPECT_EQ(window().width, 1440);
}

TEST_F(MacStory, TheStatusItemHasTheSystemsSymbolAndOneMenu) {
    const QIcon symbol = platform.trayHost->tintedSymbol();
    EXPECT_TRUE(symbol.isMask());
    EXPECT_EQ(symbol.availableSizes(), (QList<QSize>{{18, 18}, {36, 36}}));
    EXPECT_EQ(platform.trayHost->click(), TrayHost::Click::OpensMenu);
    macfakes::setHasSymbols(false);
    EXPECT_TRUE(platform.trayHost->tintedSymbol().isNull());
    launch();
    settle();
    EXPECT_NE(delegate->statusItem(), nullptr);
}

TEST_F(MacStory, ASignalAsksTheProgramToQuit) {
    QSignalSpy asked(platform.sessionEvents.get(), &SessionEvents::quitRequested);
    signalFromOutside(SIGTERM);
    EXPECT_TRUE(asked.count() == 1 || asked.wait(10'000));
}

} // namespace
} // namespace morrowleaf
