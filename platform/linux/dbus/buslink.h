// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

namespace morrowleaf {

// A connection to a message bus that comes back after the bus was gone. It
// does not ask again and again: it waits for the bus's socket to appear.
class BusLink : public QObject {
    Q_OBJECT

public:
    explicit BusLink(QDBusConnection::BusType type, QObject* parent = nullptr);
    ~BusLink() override;

    // Connects if it can; `up` follows on success.
    void open();
    QDBusConnection bus() const { return QDBusConnection(name_); }

signals:
    void up(); // a fresh connection: subscribe to everything anew

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
