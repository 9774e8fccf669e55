// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/buslink.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <QUuid>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int settleTime = 100; // milliseconds from a change of the folder to the next attempt

// The path of the socket of a bus; empty where the address does not begin with
// "unix:path=".
QString socketOf(QDBusConnection::BusType type) {
    const bool system = type == QDBusConnection::SystemBus;
    const QString address =
        qEnvironmentVariable(system ? "DBUS_SYSTEM_BUS_ADDRESS" : "DBUS_SESSION_BUS_ADDRESS");
    const auto prefix = "unix:path="_L1;
    if (address.startsWith(prefix)) {
        return address.section(u',', 0, 0).mid(prefix.size());
    }
    if (!address.isEmpty()) {
        return {};
    }
    return system ? u"/run/dbus/system_bus_socket"_s
                  : QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + "/bus"_L1;
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
    // Qt never reconnects under the same name.
    name_ = u"morrowleaf-"_s + QUuid::createUuid().toString(QUuid::Id128);
    QDBusConnection bus = QDBusConnection::connectToBus(type_, name_);
    if (!bus.isConnected()) {
        watchForSocket();
        return;
    }
    if (!watcher_.directories().isEmpty()) {
        watcher_.removePaths(watcher_.directories());
    }
    // libdbus sends this signal itself, within the process.
    bus.connect({}, u"/org/freedesktop/DBus/Local"_s, u"org.freedesktop.DBus.Local"_s,
                u"Disconnected"_s, this, SLOT(wentDown()));
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
