// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/macos/core/maccore.h"
#include "platform/macos/macparts.h"
#include "platform/shared/sessiongate.h"
#include "platform/shared/unixsignals.h"

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

class MacSession final : public SessionEvents {
public:
    MacSession()
        : watch_(macWatchSession(&MacSession::receive, this)) {
        gate_.announceBy(*this);
        connect(&signals_, &UnixSignals::quitRequested, this, &SessionEvents::quitRequested);
        askForLock();
    }
    ~MacSession() override { macEndSession(watch_); }

private:
    static void receive(void* context, MacSessionEvent event) {
        static_cast<MacSession*>(context)->handle(event);
    }

    void handle(MacSessionEvent event) {
        switch (event) {
        case MacWillSleep:
            gate_.reportLeaving();
            break;
        case MacScreenIsLocked:
            gate_.setInhibited(locked, true);
            break;
        case MacSessionDidResignActive:
            gate_.setInhibited(elsewhere, true);
            break;
        case MacDidWake:
            // An unlock may have passed unnoticed.
            askForLock();
            gate_.report(SessionGate::Event::Wake);
            break;
        case MacSessionDidBecomeActive:
            askForLock();
            gate_.setInhibited(elsewhere, false);
            gate_.report(SessionGate::Event::Active);
            break;
        case MacScreenIsUnlocked:
            gate_.setInhibited(locked, false);
            gate_.report(SessionGate::Event::Unlocked);
            break;
        }
    }
    void askForLock() { gate_.setInhibited(locked, macIsScreenLocked()); }

    const QString locked = u"locked"_s;
    const QString elsewhere = u"elsewhere"_s; // another session has the screen
    SessionGate gate_;
    UnixSignals signals_;
    void* watch_;
};

} // namespace

std::unique_ptr<SessionEvents> makeMacSession() {
    return std::make_unique<MacSession>();
}

} // namespace morrowleaf
