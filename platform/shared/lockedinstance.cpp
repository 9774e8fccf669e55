// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/lockedinstance.h"

#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <tuple>
#include <utility>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto patience = 4s;        // with an instance that does not answer
constexpr auto lockInterval = 100ms; // the instance may be about to end

} // namespace

LockedInstance::LockedInstance(const QString& folder, Channels channels)
    : lock_(folder.isEmpty() ? QString() : folder + "/morrowleaf.lock"_L1)
    , channels_(std::move(channels)) {
    lock_.setStaleLockTime(0); // never treat a lock as stale because of its age alone
    for (const auto& channel : channels_) {
        connect(channel.get(), &RequestChannel::requested, this, &SingleInstance::requested);
    }
}

bool LockedInstance::claim(const LaunchRequest& request) {
    if (takeLock()) {
        serve();
        return true;
    }
    QEventLoop waiting;
    RequestChannel* answering = nullptr;
    bool isTaken = false;
    for (const auto& channel : channels_) {
        connect(channel.get(), &RequestChannel::answered, &waiting,
                [&waiting, &answering, channel = channel.get()] {
                    if (answering == nullptr) {
                        answering = channel;
                        waiting.quit();
                    }
                });
        channel->reach();
    }
    QTimer lockTimer;
    connect(&lockTimer, &QTimer::timeout, &waiting, [this, &waiting, &isTaken] {
        isTaken = takeLock();
        if (isTaken) {
            waiting.quit();
        }
    });
    lockTimer.start(lockInterval);
    QTimer::singleShot(patience, &waiting, &QEventLoop::quit);
    if (answering == nullptr) {
        waiting.exec();
    }
    if (isTaken) {
        serve();
        return true;
    }
    if (answering == nullptr || !answering->send(request)) {
        std::ignore = std::any_of(channels_.begin(), channels_.end(), [&](const auto& channel) {
            return channel.get() != answering && channel->send(request);
        });
    }
    return false;
}

// Also true if it cannot be determined who has the lock.
bool LockedInstance::takeLock() {
    return lock_.tryLock(0) || lock_.error() != QLockFile::LockFailedError;
}

void LockedInstance::serve() {
    for (const auto& channel : channels_) {
        channel->serve();
    }
}

} // namespace morrowleaf
