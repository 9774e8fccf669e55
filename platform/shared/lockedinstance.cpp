// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/lockedinstance.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <utility>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::milliseconds lockInterval{100}; // the instance may be about to end

enum Owner : int { ThisProcess, OtherProcess };

} // namespace

LockedInstance::LockedInstance(const QString& folder, std::function<Senders()> makeSenders,
                               const Patience& patience)
    : lock_(folder.isEmpty() ? QString() : folder + "/morrowleaf.lock"_L1)
    , makeSenders_(std::move(makeSenders))
    , patience_(patience) {
    lock_.setStaleLockTime(0); // never treat a lock as stale because of its age alone
}

bool LockedInstance::claim(const std::optional<LaunchRequest>& request) {
    if (lock_.tryLock(0)) {
        return true;
    }
    if (QCoreApplication::instance() != nullptr) {
        return takeOver(request);
    }
    // Asking another process takes an event loop but no window system.
    int noArguments = 0;
    const QCoreApplication application(noArguments, nullptr);
    return takeOver(request);
}

// Passes the request on, or takes the place of an instance that ends meanwhile.
bool LockedInstance::takeOver(const std::optional<LaunchRequest>& request) {
    const bool canBeLocked = lock_.error() == QLockFile::LockFailedError;
    const Senders senders = makeSenders_();
    QEventLoop waiting;
    const RequestSender* asked = nullptr;
    for (const auto& sender : senders) {
        RequestSender* const it = sender.get();
        QObject::connect(it, &RequestSender::answered, &waiting, [&, it] {
            if (!request) {
                waiting.exit(OtherProcess);
            } else if (asked == nullptr && it->send(*request)) {
                asked = it;
            }
        });
        QObject::connect(it, &RequestSender::accepted, &waiting,
                         [&waiting] { waiting.exit(OtherProcess); });
        QObject::connect(it, &RequestSender::failed, &waiting, [&asked, it] {
            if (asked == it) {
                asked = nullptr;
            }
        });
        it->reach();
    }
    QTimer lockTimer;
    QObject::connect(&lockTimer, &QTimer::timeout, &waiting, [this, &waiting] {
        if (lock_.tryLock(0)) {
            waiting.exit(ThisProcess);
        }
    });
    if (!canBeLocked) {
        QTimer::singleShot(patience_.withoutLock, &waiting,
                           [&] { waiting.exit(asked != nullptr ? OtherProcess : ThisProcess); });
        return waiting.exec() == ThisProcess;
    }
    lockTimer.start(lockInterval);
    QTimer::singleShot(patience_.answer, &waiting, [&] {
        // An instance that hangs has the request when it goes on.
        for (const auto& sender : senders) {
            if (request && asked == nullptr && sender->send(*request)) {
                asked = sender.get();
            }
        }
    });
    QTimer::singleShot(patience_.answer + patience_.acceptance, &waiting,
                       [&waiting] { waiting.exit(OtherProcess); });
    return waiting.exec() == ThisProcess;
}

} // namespace morrowleaf
