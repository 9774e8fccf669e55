// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/sessiongate.h"

#include <utility>

namespace morrowleaf {

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
