#include "app/appdelegate.h"

#include "quotes/settingskeys.h"
#include "quotes/settingsstore.h"
#include "tests/fakes/fakeplatform.h"
#include "tests/fakes/faketiming.h"
#include "textanim/curves.h"

#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include <limits>

namespace morrowleaf {
namespace {

class AppDelegateTest : public testing::Test {
protected:
    AppSurroundings surroundings() {
        return {
            .store = store,
            .platform = desktop.platform,
            .timing = timing,
            .makeQuoteScreen =
                [this](const EditingHooks* editing) {
                    ++screensMade;
                    hooks = editing != nullptr ? std::optional(*editing) : std::nullopt;
                    content = new QWidget;
                    return QuoteContent{.widget = content,
                                        .setBehind = [this](const Behind& b) { behind = b; }};
                },
            .makeSettingsView =
                [this](std::function<void()> onShowNow, std::function<void()> onEditAppearance) {
                    ++viewsMade;
                    showNow = std::move(onShowNow);
                    edit = std::move(onEditAppearance);
                    auto* view = new QLineEdit;
                    view->setFixedSize(520, 545);
                    return view;
                },
            .terminate = [this] { ++terminations; }};
    }

    void launch(const QStringList& arguments = {"morrowleaf"}) {
        delegate = std::make_unique<AppDelegate>(surroundings());
        delegate->applicationDidFinishLaunching(arguments);
    }
    // A launch whose showing is long over.
    void launchAndClose() {
        launch();
        delegate->dismiss(false);
        timing.pass(60);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(top().window, &event);
    }
    void click(Qt::MouseButton button) { QTest::mousePress(content, button); }

    OverlayRecord& top() { return *desktop.overlays.back(); }
    bool isShown() const { return delegate->window() != nullptr; }
    qsizetype showings() const { return static_cast<qsizetype>(desktop.overlays.size()); }
    void wake() { emit desktop.platform.sessionEvents->didWake(); }
    void activate() { emit desktop.platform.sessionEvents->sessionDidBecomeActive(); }
    void unlock() { emit desktop.platform.sessionEvents->screenIsUnlocked(); }

    SettingsStore store;
    FakeDesktop desktop;
    FakeTiming timing;
    int screensMade = 0;
    int viewsMade = 0;
    int terminations = 0;
    QWidget* content = nullptr;
    std::optional<EditingHooks> hooks;
    std::optional<Behind> behind;
    std::function<void()> showNow;
    std::function<void()> edit;
    std::unique_ptr<AppDelegate> delegate;
};

TEST_F(AppDelegateTest, NumbersOfTheWindow) {
    EXPECT_EQ(static_cast<int>(WindowLevel::ScreenSaver), 1000);
    EXPECT_EQ(static_cast<int>(WindowLevel::Floating), 3);
    EXPECT_EQ(static_cast<int>(WindowLevel::Normal), 0);
    EXPECT_EQ(quoteWindowBehaviour, 321U);
    EXPECT_EQ(closingEvents, 1034U);
    EXPECT_EQ(escapeKeyCode, 53);
}

TEST_F(AppDelegateTest, LaunchRegistersDefaultsAndShowsOnce) {
    launch();
    EXPECT_EQ(store.real(K::dismiss), 15);
    EXPECT_EQ(showings(), 1);
    EXPECT_EQ(screensMade, 1);
    EXPECT_EQ(viewsMade, 0);
    EXPECT_EQ(top().setup.level, WindowLevel::ScreenSaver);
    EXPECT_EQ(top().setup.behaviour, 321U);
    EXPECT_EQ(top().setup.hold, InputHold::KeyboardAndMouse);
    EXPECT_EQ(top().fronts, 1);
    EXPECT_EQ(top().window->geometry(), QGuiApplication::primaryScreen()->geometry());
    EXPECT_EQ(content->size(), top().window->size());
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
    launch({"morrowleaf", "--unknown", "--settings"});
    EXPECT_EQ(showings(), 0);
    ASSERT_NE(delegate->settingsWindow(), nullptr);
    EXPECT_TRUE(delegate->settingsWindow()->isVisible());
    // Nothing was shown yet, so that a wake may show at once.
    wake();
    EXPECT_EQ(showings(), 1);
}

TEST_F(AppDelegateTest, SettingsArgumentIsMatchedWhole) {
    launch({"morrowleaf", "--settings=1", "--Settings"});
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
    const std::vector<std::pair<QJsonValue, double>> cases{{2, 5},      {5, 5},     {5.5, 5.5},
                                                           {60, 60},    {-1, 5},    {0, 5},
                                                           {"soon", 5}, {"20", 20}, {1e300, 1e300}};
    launch();
    for (const auto& [stored, seconds] : cases) {
        store.set(K::dismiss, stored);
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
    QTest::mouseMove(content, {5, 5});
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(content, &wheel);
    EXPECT_TRUE(isShown());
}

TEST_F(AppDelegateTest, KeysCloseModifiersAloneAndReleasesDoNot) {
    launch();
    for (const auto key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_AltGr,
                           Qt::Key_CapsLock}) {
        press(key);
        EXPECT_TRUE(isShown()) << key;
    }
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier);
    QCoreApplication::sendEvent(top().window, &release);
    EXPECT_TRUE(isShown());
    press(Qt::Key_A);
    EXPECT_FALSE(isShown());
}

TEST_F(AppDelegateTest, RepeatsOfAHeldKeyClose) {
    launch();
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
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
    content->installEventFilter(&counter);
    click(Qt::LeftButton);
    EXPECT_EQ(counter.seen, 0);
    launch();
    content->installEventFilter(&counter);
    content->setFocus();
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
    ASSERT_TRUE(hooks);
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
    menu.addAction("entry");
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
    hooks->onDone();
    EXPECT_FALSE(isShown());
    const auto late = hooks->onDone;
    timing.pass(1);
    late();
    delegate.reset();
    late();
    hooks->lowerForDialog();
    hooks->restoreAfterDialog();
}

TEST_F(AppDelegateTest, TheEditorLowersTheWindowForDialogs) {
    launchAndClose();
    delegate->editAppearance();
    hooks->lowerForDialog();
    hooks->restoreAfterDialog();
    EXPECT_EQ(top().levels, (std::vector{WindowLevel::Normal, WindowLevel::ScreenSaver}));
}

TEST_F(AppDelegateTest, PreviewHasNeitherMonitorNorTimer) {
    launchAndClose();
    const auto delays = timing.delays.size();
    delegate->present(true, false);
    EXPECT_EQ(top().setup.level, WindowLevel::Normal);
    EXPECT_EQ(top().setup.hold, InputHold::Nothing);
    EXPECT_FALSE(hooks);
    click(Qt::LeftButton);
    press(Qt::Key_Escape);
    timing.pass(100);
    EXPECT_TRUE(isShown());
    EXPECT_EQ(timing.delays.size(), delays);
}

TEST_F(AppDelegateTest, SecondPresentReplacesWithoutFade) {
    launch();
    timing.pass(10);
    delegate->show();
    EXPECT_EQ(showings(), 2);
    EXPECT_EQ(desktop.overlays[0]->outs, 1);
    timing.pass(6); // the first timer's moment
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
    // The monitor of the new showing works.
    press(Qt::Key_A);
    EXPECT_FALSE(isShown());
    timing.pass(0.5);
    EXPECT_EQ(ended.count(), 1);
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
    EXPECT_EQ(screensMade, 1);
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
    top().overlay->onLost();
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
    record->overlay->onLost();
    QCoreApplication::processEvents();
    EXPECT_EQ(record->outs, 1);
    timing.pass(1);
    EXPECT_EQ(record->outs, 1);
}

TEST_F(AppDelegateTest, DesktopIsCapturedOnlyWhereItIsSeen) {
    desktop.picture = QImage(8, 8, QImage::Format_RGB32);
    launch();
    EXPECT_EQ(desktop.captures, 0);
    EXPECT_EQ(behind->kind, Behind::Kind::Plain);
    store.set(K::transparency, 0.5);
    delegate->show();
    EXPECT_EQ(desktop.captures, 1);
    EXPECT_EQ(behind->kind, Behind::Kind::Captured);
    EXPECT_FALSE(behind->picture.isNull());
    store.set(K::transparency, 0.0);
    delegate->editAppearance();
    EXPECT_EQ(behind->kind, Behind::Kind::Captured);
}

TEST_F(AppDelegateTest, TheEditorKnowsWhetherGlassCanBeDrawn) {
    desktop.picture = QImage(8, 8, QImage::Format_RGB32);
    launch();
    delegate->editAppearance();
    EXPECT_TRUE(hooks.value().glassCanBeDrawn);
    desktop.picture = {};
    for (const auto through : {SeeThrough::Plain, SeeThrough::Blurred, SeeThrough::No}) {
        desktop.seeThrough = through;
        delegate->editAppearance();
        EXPECT_FALSE(hooks.value().glassCanBeDrawn);
    }
}

TEST_F(AppDelegateTest, EscapeInTheSettingsEndsTheEditingAndNothingElse) {
    launchAndClose();
    delegate->openSettings();
    edit();
    auto* settings = const_cast<QWidget*>(delegate->settingsWindow());
    auto* field = settings->findChild<QLineEdit*>();
    QTest::keyClicks(field, "kept");
    EXPECT_TRUE(isShown());
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_FALSE(isShown());
    EXPECT_TRUE(settings->isVisible());
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_TRUE(settings->isVisible());
    EXPECT_EQ(field->text(), "kept");
}

TEST_F(AppDelegateTest, WithoutACaptureTheNextRungHolds) {
    store.set(K::transparency, 0.5);
    desktop.seeThrough = SeeThrough::Blurred;
    launch();
    EXPECT_EQ(behind->kind, Behind::Kind::LiveBlur);
    desktop.seeThrough = SeeThrough::Plain;
    delegate->show();
    EXPECT_EQ(behind->kind, Behind::Kind::Plain);
    desktop.seeThrough = SeeThrough::No;
    delegate->show();
    EXPECT_EQ(behind->kind, Behind::Kind::Nothing);
}

TEST_F(AppDelegateTest, AnOpaqueWindowFadesOverTheDesktop) {
    desktop.seeThrough = SeeThrough::No;
    desktop.picture = QImage(QGuiApplication::primaryScreen()->size(), QImage::Format_RGB32);
    desktop.picture.fill(Qt::green);
    launch();
    QPalette blue;
    blue.setColor(QPalette::Window, Qt::blue);
    content->setPalette(blue);
    content->setAutoFillBackground(true);
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
    QPalette blue;
    blue.setColor(QPalette::Window, Qt::blue);
    content->setPalette(blue);
    content->setAutoFillBackground(true);
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
    EXPECT_EQ(window->windowTitle(), "Morrowleaf Settings");
    EXPECT_EQ(window->size(), QSize(520, 545));
    EXPECT_TRUE(window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_FALSE(window->windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
    window->findChild<QLineEdit*>()->setText("kept");
    window->close();
    EXPECT_FALSE(window->isVisible());
    delegate->openSettings();
    EXPECT_EQ(delegate->settingsWindow(), window);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->findChild<QLineEdit*>()->text(), "kept");
    EXPECT_EQ(viewsMade, 1);
    EXPECT_EQ(terminations, 0);
}

TEST_F(AppDelegateTest, SettingsWindowOpensShowings) {
    launchAndClose();
    delegate->openSettings();
    showNow();
    EXPECT_EQ(showings(), 2);
    EXPECT_FALSE(hooks);
    edit();
    EXPECT_EQ(showings(), 3);
    EXPECT_TRUE(hooks);
    EXPECT_TRUE(delegate->settingsWindow()->isVisible());
}

TEST_F(AppDelegateTest, StatusItemComesWithItsHost) {
    launch();
    EXPECT_EQ(delegate->statusItem(), nullptr);
    desktop.trayHost->present = true;
    emit desktop.trayHost->appeared();
    const auto* item = delegate->statusItem();
    ASSERT_NE(item, nullptr);
    emit desktop.trayHost->appeared();
    EXPECT_EQ(delegate->statusItem(), item);
}

TEST_F(AppDelegateTest, MenuEntriesInOrder) {
    desktop.trayHost->present = true;
    launchAndClose();
    const auto entries = delegate->statusItem()->menu().actions();
    QStringList texts;
    for (const auto* entry : entries) {
        texts << (entry->isSeparator() ? "-" : entry->text() + '|' + entry->shortcut().toString());
    }
    EXPECT_EQ(texts, (QStringList{"Show Today's Quote|Ctrl+S", "Edit Appearance…|Ctrl+E",
                                  "Settings…|Ctrl+,", "-", "Quit|Ctrl+Q"}));
    entries[0]->trigger();
    EXPECT_EQ(showings(), 2);
    EXPECT_FALSE(hooks);
    entries[1]->trigger();
    EXPECT_TRUE(hooks);
    entries[2]->trigger();
    EXPECT_TRUE(delegate->settingsWindow()->isVisible());
    entries[4]->trigger();
    EXPECT_EQ(terminations, 1);
}

TEST_F(AppDelegateTest, GoesWithEverythingStillRunning) {
    launch();
    timing.pass(0.2);
    delegate->dismiss(true);
    delegate->show();
    delegate->openSettings();
    delegate.reset();
    timing.pass(20);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(desktop.overlays[0]->overlay, nullptr);
    EXPECT_EQ(desktop.overlays[1]->overlay, nullptr);
    wake();
    EXPECT_EQ(showings(), 2);
}

} // namespace
} // namespace morrowleaf
