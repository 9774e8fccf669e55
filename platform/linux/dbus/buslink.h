// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/dbus/busprobe.h"

#include <QDBusConnection>
#include <QFileSystemWatcher>
#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <chrono>
#include <memory>

namespace morrowleaf {

// A connection to a message bus that is made anew after the bus was gone. It never waits
// for the bus, nor for another connection that is being made: it connects on a thread of
// its own, and only to a bus that answers. It does not poll either: it waits for the
// answer, or until the socket of the bus appears; only a bus that accepts connections and
// closes them is tried again at growing intervals. Main thread.
class BusLink : public QObject {
    Q_OBJECT

public:
    explicit BusLink(QDBusConnection::BusType type, QObject* parent = nullptr);
    ~BusLink() override;

    // Whether any link of this process has a thread that still connects. If the bus has
    // stopped meanwhile, that takes up to 25 s, and QtDBus cannot be used or unloaded before.
    static bool isAnyConnecting();

    // Begins to connect and returns at once. Does nothing while connected or connecting.
    void open();
    // Not connected before up().
    const QDBusConnection& bus() const { return bus_; }

signals:
    void up(); // bus() is a new connection: subscribe to everything again
    // There is a bus that answers, or there is none: libraries do not wait for it any more.
    void decided();

private slots:
    void wentDown();

private:
    struct Attempt;

    void probe();
    void readAnswer();
    void connectToBus();
    void adopt();
    void tryLater();
    void watchForSocket();

    QString address_;
    QDBusConnection bus_;
    bool isOpen_ = false;              // up, or trying to be
    std::shared_ptr<Attempt> attempt_; // null except while a thread connects
    std::unique_ptr<BusProbe> probe_;
    std::unique_ptr<QSocketNotifier> answered_;
    QFileSystemWatcher watcher_;
    QTimer retry_;
    std::chrono::milliseconds retryAfter_;
};

} // namespace morrowleaf
