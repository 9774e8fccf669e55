// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace morrowleaf {

// Reports when the user returns to the machine and when they leave it. While the session
// is locked or inactive, or no monitor is on, the signals of a return are held back; each
// kind that occurred meanwhile is emitted once afterwards. Main thread.
class SessionEvents : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

signals:
    // Signals of a return:
    void didWake();                // the machine woke from sleep
    void sessionDidBecomeActive(); // the user switched back to this session
    void screenIsUnlocked();

    // The session is about to be locked, suspended or switched away. Release
    // every input grab, or the screen locker cannot take the input.
    void willLeave();

    // The system asks the program to quit.
    void quitRequested();
};

} // namespace morrowleaf
