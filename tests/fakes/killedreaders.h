// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QThread>

#include <sys/wait.h>

namespace morrowleaf {

// Processes events until no child process is left, for three seconds at most. A reader that
// was killed is forgotten when its end is known, and until then it looks like a leak.
inline void awaitKilledReaders() {
    const QDeadlineTimer deadline(3000);
    siginfo_t ended{};
    while (::waitid(P_ALL, 0, &ended, WEXITED | WNOHANG | WNOWAIT) == 0 && !deadline.hasExpired()) {
        QCoreApplication::processEvents();
        QThread::msleep(1);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace morrowleaf
