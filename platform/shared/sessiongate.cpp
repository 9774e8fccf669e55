// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/sessiongate.h"

#include <utility>

namespace morrowleaf {

SessionGate::SessionGate(std::function<void(Event)> announce)
    : announce_(std::move(announce)) {}

void SessionGate::happened(Event event) {
    if (isOpen()) {
        announce_(event);
    } else {
        kept_.insert(event);
    }
}

void SessionGate::setBarred(const QString& by, bool barred) {
    if (barred) {
        if (!bars_.contains(by)) {
            bars_.insert(by);
            leaving();
        }
        return;
    }
    bars_.remove(by);
    if (isOpen()) {
        for (const Event event : std::exchange(kept_, {})) {
            announce_(event);
        }
    }
}

void SessionGate::leaving() const {
    if (onLeave) {
        onLeave();
    }
}

} // namespace morrowleaf
