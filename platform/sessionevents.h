// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace morrowleaf {

// The moments at which the user comes back to the machine, or leaves it. No
// coming back is announced while the session is locked or no screen exists:
// what happened meanwhile is announced once that ends.
class SessionEvents : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

signals:
    void didWake();                // the machine woke from sleep
    void sessionDidBecomeActive(); // the user's session is in front again
    void screenIsUnlocked();
    // It is about to be locked, put to sleep or switched away: whoever holds
    // the input from everybody else shall let go, for the lock's sake.
    void willLeave();
};

} // namespace morrowleaf
