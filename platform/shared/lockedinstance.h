// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/singleinstance.h"

#include <QLockFile>

#include <memory>
#include <vector>

namespace morrowleaf {

// A way on which later launches pass their requests to the instance. Main thread.
class RequestChannel : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // In the instance: receives requests from now on.
    virtual void serve() = 0;
    // In a later launch: looks for the instance until it answers.
    virtual void reach() = 0;
    // Passes `request` to an instance that has answered or, if possible, to one that may
    // answer later. Returns whether it will receive the request.
    [[nodiscard]] virtual bool send(const LaunchRequest& request) = 0;

signals:
    void requested(const morrowleaf::LaunchRequest& request);
    void answered();
};

// The instance is the process that holds a lock in `folder`, which needs neither a bus
// nor an answer; without a folder every process is one. Later launches pass their requests on the
// channel that answers first; earlier ones in the list are preferred while none has answered. A
// lock that a killed instance has left behind does not affect the next one.
class LockedInstance : public SingleInstance {
    Q_OBJECT

public:
    using Channels = std::vector<std::unique_ptr<RequestChannel>>;

    LockedInstance(const QString& folder, Channels channels);

    bool claim(const LaunchRequest& request) override;

private:
    bool takeLock();
    void serve();

    QLockFile lock_;
    Channels channels_;
};

} // namespace morrowleaf
