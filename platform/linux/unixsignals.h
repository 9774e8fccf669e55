// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace morrowleaf {

// Turns SIGTERM, SIGINT and SIGHUP into a Qt signal. The handlers stay
// installed for the life of the process; use one object at a time.
class UnixSignals : public QObject {
    Q_OBJECT

public:
    UnixSignals();

signals:
    void quitRequested();

private:
    std::unique_ptr<QSocketNotifier> notifier_; // null where there is no pipe
};

} // namespace morrowleaf
