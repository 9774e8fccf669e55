// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/singleinstance.h"

#include <QLockFile>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

namespace morrowleaf {

// A way on which a later launch passes its request to the instance. Main thread.
class RequestSender : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // Looks for the instance until it answers.
    virtual void reach() = 0;
    // Passes `request` to an instance that has answered or, if possible, to one that may
    // answer later. Returns false if there is none.
    [[nodiscard]] virtual bool send(const LaunchRequest& request) = 0;

signals:
    // None of them is emitted from within a call.
    void answered();
    void accepted(); // the instance has the request
    void failed();   // the request was not accepted; the instance may answer again
};

// A listener accepts a request this long after it has emitted it: by then a timer of 0 ms
// that its receiver has started is over, and the request carried out. If the program ends
// before, the sender hears of it and turns to the next instance.
constexpr std::chrono::milliseconds acceptanceDelay{1};

// The instance is the process that holds a lock in a folder, which needs neither a bus nor
// an answer. A lock that a killed instance has left behind does not affect the next one.
class LockedInstance : public SingleInstance {
public:
    using Senders = std::vector<std::unique_ptr<RequestSender>>;

    struct Patience {
        std::chrono::milliseconds answer;      // of the process that has the lock
        std::chrono::milliseconds acceptance;  // of a request that was sent without an answer
        std::chrono::milliseconds withoutLock; // if no lock can be made: is there an instance?
    };
    static constexpr Patience usualPatience{std::chrono::milliseconds(4000),
                                            std::chrono::milliseconds(500),
                                            std::chrono::milliseconds(300)};

    // An empty `folder` is one in which no lock can be made. `makeSenders` is called while
    // there is an application object, if another process has to be asked; the first to
    // answer gets the request.
    LockedInstance(const QString& folder, std::function<Senders()> makeSenders,
                   const Patience& patience = usualPatience);

    bool claim(const std::optional<LaunchRequest>& request) override;

private:
    bool takeOver(const std::optional<LaunchRequest>& request);

    QLockFile lock_;
    std::function<Senders()> makeSenders_;
    Patience patience_;
};

} // namespace morrowleaf
