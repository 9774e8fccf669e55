// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

namespace morrowleaf {

// A connection to a message bus that is made anew after the bus was gone. It
// does not poll: it waits until the socket of the bus appears. Main thread.
class BusLink : public QObject {
    Q_OBJECT

public:
    explicit BusLink(QDBusConnection::BusType type, QObject* parent = nullptr);
    ~BusLink() override;

    // Connects, and emits up() on success; otherwise that follows later. Blocks
    // until the bus has answered.
    void open();
    QDBusConnection bus() const { return QDBusConnection(name_); }

signals:
    void up(); // bus() is a new connection: subscribe to everything again

private slots:
    void wentDown();

private:
    void watchForSocket();

    QDBusConnection::BusType type_;
    QString name_;
    QString socket_;
    QFileSystemWatcher watcher_;
    QTimer settle_;
};

} // namespace morrowleaf
