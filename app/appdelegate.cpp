// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/appdelegate.h"

#include "app/services.h"
#include "app/showingtimes.h"
#include "platform/platform.h"
#include "quotes/quotebox.h"
#include "screen/quotescreen.h"
#include "settings/prefs.h"
#include "settings/settingsstore.h"
#include "settings/settingstable.h"
#include "settingsui/inspector.h"
#include "settingsui/settingsview.h"
#include "textanim/fonts.h"

#include <QApplication>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace morrowleaf {

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr double inspectorFaceSize = 13; // points; the editor sets its own sizes

OverlaySetup overlaySetup(bool preview, bool editing) {
    if (preview) {
        return {.level = WindowLevel::Normal, .hold = InputHold::FocusOnly};
    }
    return {.level = WindowLevel::ScreenSaver,
            .hold = editing ? InputHold::KeyboardIfNeeded : InputHold::KeyboardAndMouse};
}

} // namespace

AppDelegate::AppDelegate(const Services& services)
    : services_(services) {
    connect(&actions_.showQuote, &QAction::triggered, this, &AppDelegate::show);
    connect(&actions_.editAppearance, &QAction::triggered, this, &AppDelegate::editAppearance);
    connect(&actions_.openSettings, &QAction::triggered, this, &AppDelegate::openSettings);
    connect(&actions_.quit, &QAction::triggered, this, &AppDelegate::quitRequested);
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::prepare() {
    registerAppDefaults(services_.store);
    SessionEvents* session = services_.platform.sessionEvents.get();
    connect(session, &SessionEvents::didWake, this, &AppDelegate::trigger);
    connect(session, &SessionEvents::sessionDidBecomeActive, this, &AppDelegate::trigger);
    connect(session, &SessionEvents::screenIsUnlocked, this, &AppDelegate::trigger);
    connect(session, &SessionEvents::willLeave, this, [this] {
        waiting_.reset();
        if (window_) {
            window_->overlay().releaseInput();
        }
    });
    connect(services_.platform.trayHost.get(), &TrayHost::appeared, this,
            &AppDelegate::installStatusItem);
}

void AppDelegate::applicationDidFinishLaunching(const QStringList& arguments) {
    prepare();
    if (arguments.contains("--settings"_L1)) {
        openSettings();
    } else {
        present(false, false);
    }
}

void AppDelegate::installStatusItem() {
    statusItem_ = std::make_unique<StatusItem>(actions_, *services_.platform.trayHost);
}

void AppDelegate::show() {
    present(false, false);
}

void AppDelegate::editAppearance() {
    present(false, true);
}

void AppDelegate::trigger() {
    if (window_) {
        window_->overlay().retakeInput();
    }
    if (Prefs::showOnWake(services_.store) &&
        services_.timing.now() - lastShown_ > throttleSeconds && !waiting_) {
        presentAfterLocker();
    }
}

// A locker that has just been unlocked may still be on the screen, and would be in the
// picture of the desktop.
void AppDelegate::presentAfterLocker() {
    QScreen* screen = services_.platform.mainScreen->current();
    if (screen == nullptr) {
        present(false, false);
        return;
    }
    waiting_ = services_.platform.desktopPicture->afterLocker(
        *screen, services_.store.get(K::transparency) > 0, [this] {
            // It may be the caller.
            if (QObject* waiting = waiting_.release()) {
                waiting->deleteLater();
            }
            present(false, false);
        });
}

void AppDelegate::present(bool preview, bool editing) {
    waiting_.reset();
    if (window_) {
        dismiss(false);
    }
    lastShown_ = services_.timing.now();
    QScreen* screen = services_.platform.mainScreen->current();
    if (screen == nullptr) {
        return;
    }
    auto window = std::make_unique<QuoteWindow>(*services_.platform.overlays, *screen,
                                                overlaySetup(preview, editing));
    QuoteScreen* content = makeQuoteScreen(captureDesktop(*window, *screen, editing));
    if (editing) {
        addInspector(*content, window->overlay());
    }
    // Queued, because the window must not change while it is painted.
    connect(content, &QuoteScreen::systemBackdropWanted, &window->overlay(),
            &OverlayWindow::setBackdrop, Qt::QueuedConnection);
    window->setContent(content);
    window->setAlpha(0);
    const auto handleThisLoss = [this, lost = QPointer(window.get())] {
        if (lost) {
            handleLoss(lost);
        }
    };
    // Queued, because the sender may still be executing.
    connect(&window->overlay(), &OverlayWindow::lost, this, handleThisLoss, Qt::QueuedConnection);
    connect(window.get(), &QuoteWindow::closed, this, handleThisLoss, Qt::QueuedConnection);
    window->orderFront();
    window_ = std::move(window);
    window_->fadeIn(services_.timing);
    if (preview) {
        return;
    }
    monitor_ = std::make_unique<EventMonitor>(editing ? EndedBy::Escape : EndedBy::AnyInput,
                                              *window_, window_->overlay().orderedFrontAt(),
                                              *services_.platform.inputTaps);
    connect(monitor_.get(), &EventMonitor::endRequested, this, [this] { dismiss(true); });
    if (!editing) {
        // Queued, because the sender is still handling an event of the window.
        connect(
            &window_->overlay(), &OverlayWindow::clickedElsewhere, this, [this] { dismiss(true); },
            Qt::QueuedConnection);
        const double seconds = Prefs::dismissSeconds(services_.store);
        // The comparison is false for NaN, which gives the shortest showing.
        autoDismiss_ = services_.timing.after(
            seconds > shortestShowingSeconds ? seconds : shortestShowingSeconds,
            [this] { dismiss(true); });
    }
}

QuoteScreen* AppDelegate::makeQuoteScreen(const DesktopView& desktop) {
    auto box = std::make_unique<QuoteBox>(services_.store, services_.loader, services_.clock,
                                          services_.random);
    auto* screen = new QuoteScreen(services_.store, services_.fonts, services_.photos,
                                   std::move(box), services_.clock, services_.frames);
    screen->setDesktopView(desktop);
    const DesktopWishes* wishes = services_.platform.wishes.get();
    screen->setWishes(wishes->current());
    connect(wishes, &DesktopWishes::changed, screen, &QuoteScreen::setWishes);
    return screen;
}

void AppDelegate::addInspector(QuoteScreen& screen, OverlayWindow& overlay) {
    InspectorSetup setup{.glassCanBeDrawn = glassAvailable(screen.desktopView()),
                         .face =
                             nsFont(services_.fonts, inspectorFaceSize, FontDesign::Default).face};
    setup.highContrast = services_.platform.wishes->current().highContrast;
    if (const QScreen* main = services_.platform.mainScreen->current()) {
        setup.screen =
            ScreenFrames{.whole = main->geometry(), .visible = main->availableGeometry()};
    }
    auto* inspector = new Inspector(services_.store, services_.photos,
                                    *services_.platform.fileChooser, setup, &screen);
    connect(inspector, &Inspector::done, this, [this] { dismiss(true); });
    connect(inspector, &Inspector::dialogOpening, &overlay, [this, inspector, &overlay] {
        choosing_ = inspector;
        lowerSettingsForDialog();
        overlay.setLevel(WindowLevel::Normal);
    });
    connect(inspector, &Inspector::dialogClosed, &overlay, [this, &overlay] {
        choosing_ = nullptr;
        overlay.setLevel(WindowLevel::ScreenSaver);
    });
    screen.setInspector(inspector);
}

// A dialog can come in front of our windows only while they are lowered. It closes with
// the inspector, if the showing ends first.
void AppDelegate::lowerSettingsForDialog() {
    SettingsWindow* settings = settingsWindow_.get();
    if (settings != nullptr && choosing_) {
        const auto rise = &SettingsWindow::riseAboveOrdinaryWindows;
        settings->joinOrdinaryWindows();
        connect(choosing_, &Inspector::dialogClosed, settings, rise, Qt::UniqueConnection);
        connect(choosing_, &QObject::destroyed, settings, rise, Qt::UniqueConnection);
    }
}

// Finds out what can be shown behind the window. Captures the desktop only if its picture
// is needed, for the glass or for the fade.
DesktopView AppDelegate::captureDesktop(QuoteWindow& window, QScreen& screen, bool editing) {
    const SeeThrough through = window.overlay().seeThrough();
    const bool looksThrough = editing || services_.store.get(K::transparency) > 0;
    DesktopView desktop;
    if (looksThrough || through == SeeThrough::No) {
        const QImage picture = services_.platform.desktopPicture->capture(screen);
        if (through == SeeThrough::No) {
            window.setDesktop(picture);
        }
        if (!picture.isNull() && looksThrough) {
            desktop.kind = DesktopView::Kind::Captured;
            desktop.picture = picture;
            return desktop;
        }
    }
    switch (through) {
    case SeeThrough::Plain:
        desktop.kind = DesktopView::Kind::Plain;
        break;
    case SeeThrough::Blurred:
        desktop.kind = DesktopView::Kind::LiveBlur;
        break;
    case SeeThrough::SystemBlur:
        desktop.kind = DesktopView::Kind::SystemBlur;
        break;
    case SeeThrough::SystemGlass:
        desktop.kind = DesktopView::Kind::SystemGlass;
        break;
    case SeeThrough::No:
        break;
    }
    return desktop;
}

void AppDelegate::dismiss(bool animated) {
    autoDismiss_.reset();
    // The monitor's own signal may have led here.
    if (EventMonitor* monitor = monitor_.release()) {
        monitor->stop();
        monitor->deleteLater();
    }
    if (!window_) {
        return;
    }
    QuoteWindow* leaving = window_.get();
    fadingOut_.push_back(std::move(window_));
    // It may wait for its place, or a dialog may have taken that.
    if (animated && leaving->isVisible()) {
        leaving->fadeOut(services_.timing, [this, leaving] { removeWindow(leaving); });
    } else {
        removeWindow(leaving);
    }
}

void AppDelegate::handleLoss(const QuoteWindow* window) {
    if (window_.get() == window) {
        dismiss(false);
    } else {
        removeWindow(window);
    }
}

void AppDelegate::removeWindow(const QuoteWindow* window) {
    const auto found = std::find_if(fadingOut_.begin(), fadingOut_.end(),
                                    [window](const auto& w) { return w.get() == window; });
    if (found == fadingOut_.end()) {
        return;
    }
    (*found)->orderOut();
    found->release()->deleteLater(); // a function of the window may be the caller
    fadingOut_.erase(found);
    if (!window_ && fadingOut_.empty()) {
        emit showingEnded();
    }
}

void AppDelegate::openSettings() {
    if (!settingsWindow_) {
        auto* view = new SettingsView(services_.store, services_.loader,
                                      *services_.platform.loginItem, actions_);
        connect(view, &SettingsView::loginItemRefused, qApp, &QApplication::beep);
        settingsWindow_ = std::make_unique<SettingsWindow>(view, *services_.platform.floater);
        if (const QScreen* screen = services_.platform.mainScreen->current()) {
            settingsWindow_->place(screen->availableGeometry());
        }
    } else {
        settingsWindow_->fitInto(settingsWindow_->screen()->availableGeometry());
    }
    settingsWindow_->bringToFront();
    lowerSettingsForDialog();
}

} // namespace morrowleaf
