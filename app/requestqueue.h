// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/singleinstance.h"

#include <QObject>
#include <QTimer>

#include <vector>

namespace morrowleaf {

// Collects the requests that have arrived while the main thread was busy. Of those that
// show the quotation or the editor only the newest is carried out, and one for the
// settings beside it; what the others asked for would be replaced at once. Beside a
// request to quit nothing else is carried out. Main thread.
class RequestQueue : public QObject {
    Q_OBJECT

public:
    RequestQueue();

    void add(const LaunchRequest& request);

signals:
    // Emitted once everything else that waits for the main thread has been handled.
    void due(const morrowleaf::LaunchRequest& request);

private:
    void deliver();

    std::vector<LaunchRequest> waiting_; // in the order of arrival
    QTimer idle_;
};

} // namespace morrowleaf
