// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/desktopparts.h"

#include "platform/linux/dbus/logind.h"
#include "platform/linux/dbus/screensavers.h"
#include "platform/linux/x11/x11connection.h"
#include "platform/linux/x11/x11monitors.h"
#include "platform/shared/sessiongate.h"
#include "platform/shared/unixsignals.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

// Monitors that are switched on appear, move and resize one after the other.
constexpr int settleTime = 500; // milliseconds

// With all monitors off, Qt may keep a screen with an empty geometry or a placeholder.
bool hasScreen() {
    if (x11::connection() != nullptr && !X11Monitors::isAnyOn()) {
        return false;
    }
    const auto screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(),
                       [](const QScreen* s) { return !s->geometry().isEmpty(); });
}

class DesktopSession final : public SessionEvents {
public:
    explicit DesktopSession(std::shared_ptr<const BusLink> session)
        : logind_(gate_)
        , screenSavers_(gate_, std::move(session)) {
        gate_.announceBy(*this);
        connect(&signals_, &UnixSignals::quitRequested, this, &SessionEvents::quitRequested);
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
    void lookForScreens() { gate_.setInhibited(u"no screen"_s, !hasScreen()); }

    SessionGate gate_;
    QTimer settle_;
    Logind logind_;
    ScreenSavers screenSavers_;
    UnixSignals signals_;
    std::unique_ptr<X11Monitors> monitors_; // null except on X11
};

} // namespace

std::unique_ptr<SessionEvents> makeDesktopSession(std::shared_ptr<const BusLink> session) {
    return std::make_unique<DesktopSession>(std::move(session));
}

} // namespace morrowleaf
