// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/desktopsession.h"

#include "platform/linux/dbus/logind.h"
#include "platform/linux/dbus/screensavers.h"
#include "platform/linux/x11/x11connection.h"
#include "platform/linux/x11/x11monitors.h"
#include "platform/shared/sessiongate.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

#include <algorithm>

namespace morrowleaf {

namespace {

// Monitors that come on arrive, move and change their size one after another.
constexpr int settleTime = 500; // milliseconds

// Without any monitor a screen without an area may remain, or one made up.
bool hasScreen() {
    if (x11::connection() != nullptr && !X11Monitors::anyIsOn()) {
        return false;
    }
    const auto screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(),
                       [](const QScreen* s) { return !s->geometry().isEmpty(); });
}

class DesktopSession final : public SessionEvents {
public:
    DesktopSession()
        : gate_([this](SessionGate::Event event) { announce(event); })
        , logind_(gate_)
        , screenSavers_(gate_) {
        gate_.onLeave = [this] { emit willLeave(); };
        settle_.setSingleShot(true);
        settle_.setInterval(settleTime);
        connect(&settle_, &QTimer::timeout, this, &DesktopSession::lookForScreens);
        connect(qGuiApp, &QGuiApplication::screenAdded, this, &DesktopSession::follow);
        connect(qGuiApp, &QGuiApplication::screenRemoved, this, &DesktopSession::screensChanged,
                Qt::QueuedConnection);
        const auto screens = QGuiApplication::screens();
        for (const QScreen* screen : screens) {
            follow(screen);
        }
        if (x11::connection() != nullptr) {
            monitors_ = std::make_unique<X11Monitors>();
            connect(monitors_.get(), &X11Monitors::changed, this, &DesktopSession::screensChanged);
        }
        lookForScreens();
    }

private:
    void follow(const QScreen* screen) {
        connect(screen, &QScreen::geometryChanged, this, &DesktopSession::screensChanged);
        QMetaObject::invokeMethod(this, &DesktopSession::screensChanged, Qt::QueuedConnection);
    }
    void screensChanged() {
        if (hasScreen()) {
            settle_.start();
        } else {
            lookForScreens();
        }
    }
    void lookForScreens() { gate_.setBarred("no screen", !hasScreen()); }

    void announce(SessionGate::Event event) {
        switch (event) {
        case SessionGate::Event::Wake:
            emit didWake();
            break;
        case SessionGate::Event::Active:
            emit sessionDidBecomeActive();
            break;
        case SessionGate::Event::Unlocked:
            emit screenIsUnlocked();
            break;
        }
    }

    SessionGate gate_;
    QTimer settle_;
    Logind logind_;
    ScreenSavers screenSavers_;
    std::unique_ptr<X11Monitors> monitors_; // none but on X11
};

} // namespace

std::unique_ptr<SessionEvents> makeDesktopSession() {
    return std::make_unique<DesktopSession>();
}

} // namespace morrowleaf
