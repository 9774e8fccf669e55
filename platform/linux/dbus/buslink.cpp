// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/buslink.h"

#include <QFileInfo>
#include <QThread>
#include <QUuid>

#include <algorithm>
#include <atomic>
#include <utility>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto settleTime = 100ms; // from a change of the folder to the next attempt
constexpr std::chrono::milliseconds firstRetry = 1s;
constexpr std::chrono::milliseconds lastRetry = 5min;

std::atomic<int> connectingThreads = 0;

} // namespace

struct BusLink::Attempt {
    QDBusConnection made{QString()};
    // Set by the thread that has connected, and by a link that is destroyed: the second of
    // them disconnects.
    std::atomic_flag isOver;
};

BusLink::BusLink(QDBusConnection::BusType type, QObject* parent)
    : QObject(parent)
    , address_(busAddress(type))
    , bus_(QString())
    , retryAfter_(firstRetry) {
    retry_.setSingleShot(true);
    connect(&retry_, &QTimer::timeout, this, &BusLink::probe);
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, &retry_,
            [this] { retry_.start(settleTime); });
}

BusLink::~BusLink() {
    answered_.reset();
    if (attempt_ && attempt_->isOver.test_and_set()) {
        bus_ = attempt_->made;
    }
    // The lock that this takes is held while any connection is being made.
    if (!isAnyConnecting()) {
        QDBusConnection::disconnectFromBus(bus_.name());
    }
}

bool BusLink::isAnyConnecting() {
    return connectingThreads > 0;
}

void BusLink::open() {
    if (!isOpen_) {
        isOpen_ = true;
        probe();
    }
}

void BusLink::probe() {
    if (attempt_ || bus_.isConnected()) {
        return;
    }
    answered_.reset();
    probe_ = std::make_unique<BusProbe>(address_);
    if (probe_->descriptor() >= 0) {
        answered_ = std::make_unique<QSocketNotifier>(probe_->descriptor(), QSocketNotifier::Read);
        // Queued, because the slot destroys the notifier.
        connect(answered_.get(), &QSocketNotifier::activated, this, &BusLink::readAnswer,
                Qt::QueuedConnection);
    }
    readAnswer();
}

void BusLink::readAnswer() {
    const auto answer = probe_ ? probe_->answer() : BusProbe::Answer::None;
    if (!probe_ || (answer == BusProbe::Answer::None && answered_)) {
        return;
    }
    answered_.reset();
    probe_.reset();
    switch (answer) {
    case BusProbe::Answer::Some:
        connectToBus();
        break;
    case BusProbe::Answer::Missing:
        watchForSocket();
        emit decided();
        break;
    case BusProbe::Answer::Closed:
        tryLater();
        emit decided();
        break;
    case BusProbe::Answer::None:
        tryLater();
        break;
    }
}

void BusLink::connectToBus() {
    attempt_ = std::make_shared<Attempt>();
    // Qt never reconnects under the same name.
    const QString name = u"morrowleaf-"_s + QUuid::createUuid().toString(QUuid::Id128);
    ++connectingThreads;
    QThread* thread =
        QThread::create([attempt = attempt_, name, address = address_, previous = bus_.name()] {
            QDBusConnection::disconnectFromBus(previous);
            attempt->made = QDBusConnection::connectToBus(address, name);
            if (attempt->isOver.test_and_set()) {
                QDBusConnection::disconnectFromBus(name);
            }
            --connectingThreads;
        });
    connect(thread, &QThread::finished, this, &BusLink::adopt);
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start();
}

void BusLink::adopt() {
    bus_ = std::exchange(attempt_, nullptr)->made;
    // libdbus sends this signal itself, within the process.
    bus_.connect({}, u"/org/freedesktop/DBus/Local"_s, u"org.freedesktop.DBus.Local"_s,
                 u"Disconnected"_s, this, SLOT(wentDown()));
    if (!bus_.isConnected()) {
        tryLater();
        emit decided();
        return;
    }
    retryAfter_ = firstRetry;
    if (!watcher_.directories().isEmpty()) {
        watcher_.removePaths(watcher_.directories());
    }
    emit up();
    emit decided();
}

void BusLink::wentDown() {
    watchForSocket();
    retry_.start(settleTime);
}

void BusLink::tryLater() {
    watchForSocket();
    retry_.start(retryAfter_);
    retryAfter_ = std::min(retryAfter_ * 2, lastRetry);
}

void BusLink::watchForSocket() {
    const QString socket = busSocket(address_);
    if (!socket.isEmpty()) {
        watcher_.addPath(QFileInfo(socket).absolutePath());
    }
}

} // namespace morrowleaf
