#include "platform/linux/desktopsession.h"

#include "platform/linux/logind.h"
#include "platform/linux/screensavers.h"
#include "platform/linux/sessiongate.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace morrowleaf {

namespace {

// Without any monitor one screen without an area may remain.
bool hasScreen() {
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
        connect(qGuiApp, &QGuiApplication::screenAdded, this, &DesktopSession::follow);
        connect(
            qGuiApp, &QGuiApplication::screenRemoved, this, [this] { lookForScreens(); },
            Qt::QueuedConnection);
        const auto screens = QGuiApplication::screens();
        for (const QScreen* screen : screens) {
            follow(screen);
        }
        lookForScreens();
    }

private:
    void follow(const QScreen* screen) {
        connect(screen, &QScreen::geometryChanged, this, [this] { lookForScreens(); });
        QMetaObject::invokeMethod(
            this, [this] { lookForScreens(); }, Qt::QueuedConnection);
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
    Logind logind_;
    ScreenSavers screenSavers_;
};

} // namespace

std::unique_ptr<SessionEvents> makeDesktopSession() {
    return std::make_unique<DesktopSession>();
}

} // namespace morrowleaf
