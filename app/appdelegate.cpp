// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/appdelegate.h"

#include "base/curves.h"
#include "settings/prefs.h"
#include "settings/settingskeys.h"
#include "settings/settingsstore.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace morrowleaf {

namespace {

constexpr double throttle = 8.0; // seconds between a showing and a triggered one
constexpr double fadeInSeconds = 0.55;
constexpr double fadeOutSeconds = 0.45;
constexpr double shortestShowing = 5.0; // seconds

// The number of a key in the monitor's terms; 0 where none is needed.
int keyCode(const QKeyEvent& event) {
    return event.key() == Qt::Key_Escape ? escapeKeyCode : 0;
}

// A menu or dialog in front closes first.
bool somethingInFront(const QWidget* window) {
    const QWidget* modal = QApplication::activeModalWidget();
    return QApplication::activePopupWidget() != nullptr || (modal != nullptr && modal != window);
}

Behind behindOf(Behind::Kind kind, const QImage& picture = {}) {
    Behind behind;
    behind.kind = kind;
    behind.picture = picture;
    return behind;
}

OverlaySetup overlaySetup(bool preview, bool editing) {
    if (preview) {
        return {.level = WindowLevel::Normal, .hold = InputHold::FocusOnly};
    }
    return {.level = WindowLevel::ScreenSaver,
            .hold = editing ? InputHold::KeyboardIfNeeded : InputHold::KeyboardAndMouse};
}

} // namespace

AppDelegate::AppDelegate(AppSurroundings surroundings)
    : around_(std::move(surroundings)) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::prepare() {
    registerAppDefaults(around_.store);
    SessionEvents* session = around_.platform.sessionEvents.get();
    connect(session, &SessionEvents::didWake, this, &AppDelegate::trigger);
    connect(session, &SessionEvents::sessionDidBecomeActive, this, &AppDelegate::trigger);
    connect(session, &SessionEvents::screenIsUnlocked, this, &AppDelegate::trigger);
    connect(session, &SessionEvents::willLeave, this, [this] {
        if (window_) {
            window_->overlay().letGo();
        }
    });
    TrayHost* tray = around_.platform.trayHost.get();
    connect(tray, &TrayHost::appeared, this, &AppDelegate::installStatusItem);
    if (tray->isPresent()) {
        installStatusItem();
    }
}

void AppDelegate::applicationDidFinishLaunching(const QStringList& arguments) {
    prepare();
    if (arguments.contains("--settings")) {
        openSettings();
    } else {
        present(false, false);
    }
}

void AppDelegate::installStatusItem() {
    statusItem_ =
        std::make_unique<StatusItem>(StatusActions{.show = [this] { show(); },
                                                   .editAppearance = [this] { editAppearance(); },
                                                   .openSettings = [this] { openSettings(); },
                                                   .terminate = around_.terminate});
}

void AppDelegate::show() {
    present(false, false);
}

void AppDelegate::editAppearance() {
    present(false, true);
}

void AppDelegate::trigger() {
    if (Prefs::showOnWake(around_.store) && around_.timing.now() - lastShown_ > throttle) {
        present(false, false);
    }
}

void AppDelegate::present(bool preview, bool editing) {
    if (window_) {
        dismiss(false);
    }
    lastShown_ = around_.timing.now();
    QScreen* screen = around_.platform.mainScreen->current();
    if (screen == nullptr) {
        return;
    }
    auto window = std::make_unique<QuoteWindow>(*around_.platform.overlays, *screen,
                                                overlaySetup(preview, editing));
    const Behind behind = lookBehind(*window, *screen, editing);
    const EditingHooks hooks{.onDone =
                                 [self = QPointer(this)] {
                                     if (self) {
                                         self->dismiss(true);
                                     }
                                 },
                             .lowerForDialog =
                                 [w = QPointer(window.get())] {
                                     if (w) {
                                         w->overlay().setLevel(WindowLevel::Normal);
                                     }
                                 },
                             .restoreAfterDialog =
                                 [w = QPointer(window.get())] {
                                     if (w) {
                                         w->overlay().setLevel(WindowLevel::ScreenSaver);
                                     }
                                 },
                             .glassCanBeDrawn = glassAvailable(behind)};
    const QuoteContent content = around_.makeQuoteScreen(editing ? &hooks : nullptr);
    if (content.setBehind) {
        content.setBehind(behind);
    }
    window->setContent(content.widget);
    window->setAlpha(0);
    const auto loseIt = [this, lost = QPointer(window.get())] {
        if (lost) {
            lose(lost);
        }
    };
    // Queued: the sender is still at work when it emits.
    connect(&window->overlay(), &OverlayWindow::lost, this, loseIt, Qt::QueuedConnection);
    connect(window.get(), &QuoteWindow::closed, this, loseIt, Qt::QueuedConnection);
    window->orderFront();
    window_ = std::move(window);
    window_->fade(around_.timing, 1, fadeInSeconds, easeOut, [] {});
    if (preview) {
        return;
    }
    installMonitor(editing);
    if (!editing) {
        const double seconds = Prefs::dismissSeconds(around_.store);
        // Written so that what is not a number gives the shortest.
        autoDismiss_ = around_.timing.after(seconds > shortestShowing ? seconds : shortestShowing,
                                            [this] { dismiss(true); });
    }
}

void AppDelegate::installMonitor(bool editing) {
    const quint32 since = window_->overlay().orderedFrontAt();
    if (editing) {
        monitor_ = std::make_unique<EventMonitor>(keyDown, since, [this](const QEvent& event) {
            if (keyCode(static_cast<const QKeyEvent&>(event)) != escapeKeyCode ||
                somethingInFront(window_.get())) {
                return false;
            }
            dismiss(true);
            return true;
        });
    } else {
        monitor_ = std::make_unique<EventMonitor>(closingEvents, since, [this](const QEvent&) {
            dismiss(true);
            return true;
        });
    }
}

Behind AppDelegate::lookBehind(QuoteWindow& window, QScreen& screen, bool editing) {
    const SeeThrough through = window.overlay().seeThrough();
    const bool looksThrough = editing || around_.store.real(K::transparency) > 0;
    if (looksThrough || through == SeeThrough::No) {
        const QImage picture = around_.platform.desktopPicture->capture(screen);
        if (through == SeeThrough::No) {
            window.setDesktop(picture);
        }
        if (!picture.isNull() && looksThrough) {
            return behindOf(Behind::Kind::Captured, picture);
        }
    }
    switch (through) {
    case SeeThrough::Plain:
        return behindOf(Behind::Kind::Plain);
    case SeeThrough::Blurred:
        return behindOf(Behind::Kind::LiveBlur);
    case SeeThrough::No:
        break;
    }
    return {};
}

void AppDelegate::dismiss(bool animated) {
    autoDismiss_.reset();
    // It may be the monitor's own call that leads here.
    if (EventMonitor* monitor = monitor_.release()) {
        QCoreApplication::instance()->removeEventFilter(monitor);
        monitor->deleteLater();
    }
    if (!window_) {
        return;
    }
    QuoteWindow* leaving = window_.get();
    fadingOut_.push_back(std::move(window_));
    if (animated) {
        leaving->fade(around_.timing, 0, fadeOutSeconds, easeIn,
                      [this, leaving] { leave(leaving); });
    } else {
        leave(leaving);
    }
}

void AppDelegate::lose(const QuoteWindow* window) {
    if (window_.get() == window) {
        dismiss(false);
    } else {
        leave(window);
    }
}

void AppDelegate::leave(const QuoteWindow* window) {
    const auto found = std::find_if(fadingOut_.begin(), fadingOut_.end(),
                                    [window](const auto& w) { return w.get() == window; });
    if (found == fadingOut_.end()) {
        return;
    }
    (*found)->orderOut();
    found->release()->deleteLater(); // a call from within it may have led here
    fadingOut_.erase(found);
    if (!window_ && fadingOut_.empty()) {
        emit showingEnded();
    }
}

void AppDelegate::openSettings() {
    if (!settingsWindow_) {
        settingsWindow_ = std::make_unique<SettingsWindow>(
            around_.makeSettingsView([this] { show(); }, [this] { editAppearance(); }));
        if (const QScreen* screen = around_.platform.mainScreen->current()) {
            settingsWindow_->place(screen->availableGeometry());
        }
    }
    settingsWindow_->comeForward();
}

} // namespace morrowleaf
