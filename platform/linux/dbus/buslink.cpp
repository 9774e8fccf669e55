// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/buslink.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <QUuid>

namespace morrowleaf {

namespace {

constexpr int settleTime = 100; // milliseconds from a folder's change to the next attempt

// The path of a bus of the common form "unix:path=/..."; other forms have none.
QString socketOf(QDBusConnection::BusType type) {
    const bool system = type == QDBusConnection::SystemBus;
    const QString address =
        qEnvironmentVariable(system ? "DBUS_SYSTEM_BUS_ADDRESS" : "DBUS_SESSION_BUS_ADDRESS");
    const QString prefix = "unix:path=";
    if (address.startsWith(prefix)) {
        return address.section(',', 0, 0).mid(prefix.size());
    }
    if (!address.isEmpty()) {
        return {};
    }
    return system ? QString("/run/dbus/system_bus_socket")
                  : QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + "/bus";
}

} // namespace

BusLink::BusLink(QDBusConnection::BusType type, QObject* parent)
    : QObject(parent)
    , type_(type)
    , socket_(socketOf(type)) {
    settle_.setSingleShot(true);
    settle_.setInterval(settleTime);
    connect(&settle_, &QTimer::timeout, this, &BusLink::open);
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, &settle_,
            qOverload<>(&QTimer::start));
}

BusLink::~BusLink() {
    QDBusConnection::disconnectFromBus(name_);
}

void BusLink::open() {
    if (!name_.isEmpty()) {
        QDBusConnection::disconnectFromBus(name_);
    }
    // A name is good for one connection: a dead one stays dead under it.
    name_ = "morrowleaf-" + QUuid::createUuid().toString(QUuid::Id128);
    QDBusConnection bus = QDBusConnection::connectToBus(type_, name_);
    if (!bus.isConnected()) {
        watchForSocket();
        return;
    }
    if (!watcher_.directories().isEmpty()) {
        watcher_.removePaths(watcher_.directories());
    }
    bus.connect({}, "/org/freedesktop/DBus/Local", "org.freedesktop.DBus.Local", "Disconnected",
                this, SLOT(wentDown()));
    emit up();
}

void BusLink::wentDown() {
    watchForSocket();
    settle_.start();
}

void BusLink::watchForSocket() {
    if (!socket_.isEmpty()) {
        watcher_.addPath(QFileInfo(socket_).absolutePath());
    }
}

} // namespace morrowleaf
