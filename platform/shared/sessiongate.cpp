// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/sessiongate.h"

#include <utility>

namespace morrowleaf {

void SessionGate::announceBy(SessionEvents& events) const {
    connect(this, &SessionGate::leaving, &events, &SessionEvents::willLeave);
    connect(this, &SessionGate::delivered, &events, [&events](Event event) {
        switch (event) {
        case Event::Wake:
            emit events.didWake();
            break;
        case Event::Active:
            emit events.sessionDidBecomeActive();
            break;
        case Event::Unlocked:
            emit events.screenIsUnlocked();
            break;
        }
    });
}

void SessionGate::report(Event event) {
    if (inhibitors_.isEmpty()) {
        emit delivered(event);
    } else {
        queued_.insert(event);
    }
}

void SessionGate::setInhibited(const QString& inhibitor, bool active) {
    if (active) {
        if (!inhibitors_.contains(inhibitor)) {
            inhibitors_.insert(inhibitor);
            reportLeaving();
        }
        return;
    }
    inhibitors_.remove(inhibitor);
    if (inhibitors_.isEmpty()) {
        for (const Event event : std::exchange(queued_, {})) {
            emit delivered(event);
        }
    }
}

void SessionGate::reportLeaving() {
    emit leaving();
}

} // namespace morrowleaf
