// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace morrowleaf {

// Turns SIGTERM, SIGINT and SIGHUP of other processes into a Qt signal. If the process has
// not ended 5 s later, it ends with status 0 without the main thread. The handlers stay
// installed for the life of the process; create only one object at a time. Main thread.
class UnixSignals : public QObject {
    Q_OBJECT

public:
    UnixSignals();

signals:
    void quitRequested();

private:
    std::unique_ptr<QSocketNotifier> notifier_; // null if the pipe could not be created
};

} // namespace morrowleaf
