// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "bus_interface.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QObject>

#include <cstring>

namespace morrowleaf {

// How this folder talks to services without ever blocking on the bus or on a
// service. Qt's proxies wait for the bus when they are created for a well-known
// name, and whenever a signal of any named service is connected; a stopped bus
// would stop the main thread with them. So:
//
// - a BusService finds out asynchronously who owns a well-known name;
// - calls go through a proxy of the unique name, BusService::owner();
// - signals come through BusSignals, a proxy without a name, and the slot
//   compares the sender with the owner.

// The bus itself. Qt does not look up the owner of this one name.
class Bus : public OrgFreedesktopDBusInterface {
public:
    explicit Bus(const QDBusConnection& connection);
};

// Follows the owner of a well-known name on one bus.
class BusService : public QObject {
    Q_OBJECT

public:
    explicit BusService(const QString& name, QObject* parent = nullptr);

    // Starts over on `bus`: the owner is unknown until appeared().
    void follow(const QDBusConnection& bus);
    // Has the bus start the service if it is not running and can be started.
    void activate();

    // The unique name of the owner; empty while there is none or it is unknown.
    QString owner() const { return owner_; }
    // Whether a signal in that context, a BusSignals, was sent by the owner.
    bool sent(const QDBusContext& signal) const;

signals:
    void appeared(); // owner() has changed to another name
    void absent();   // follow() has found no owner
    void vanished(); // the previous owner is gone; emitted before appeared()
    void activationFailed();

private:
    void setOwner(const QString& owner);

    QString name_;
    QString owner_;
    QDBusConnection bus_;
    QDBusServiceWatcher watcher_;
};

// Registers the types of the arguments of the signals of a proxy's class. QtDBus
// looks them up by name, and silently does not connect a signal with a type that
// is not registered yet, as QDBusVariant until the first message has been read.
void registerSignalTypes(const QMetaObject& proxy);

// The signals of an interface, from all senders. `Proxy` is a class that
// qt_add_dbus_interface() made. In a slot, message() is the one that is delivered.
template <typename Proxy>
class BusSignals : public Proxy, public QDBusContext {
public:
    BusSignals(const QString& path, const QDBusConnection& bus, QObject* parent)
        : Proxy(QString(), path, bus, parent) {
        registerSignalTypes(Proxy::staticMetaObject);
    }

    // Qt asks by this name for the context; Q_OBJECT is not possible in a template.
    void* qt_metacast(const char* name) override {
        return std::strcmp(name, "QDBusContext") == 0 ? static_cast<QDBusContext*>(this)
                                                      : Proxy::qt_metacast(name);
    }
};

// Calls `take` with the finished QDBusPendingReply on the thread of `owner`,
// unless `owner` is destroyed before.
template <typename Reply, typename Take>
void whenFinished(QObject* owner, const Reply& call, Take take) {
    auto* watcher = new QDBusPendingCallWatcher(call, owner);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, owner, [watcher, take] {
        watcher->deleteLater();
        take(Reply(*watcher));
    });
}

} // namespace morrowleaf
