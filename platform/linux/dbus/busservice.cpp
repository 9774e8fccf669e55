// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/busservice.h"

#include <QDBusMessage>
#include <QMetaMethod>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr auto noOwner = "org.freedesktop.DBus.Error.NameHasNoOwner"_L1;
} // namespace

Bus::Bus(const QDBusConnection& connection)
    : OrgFreedesktopDBusInterface(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                  connection) {}

BusService::BusService(const QString& name, QObject* parent)
    : QObject(parent)
    , name_(name)
    , bus_(QString()) {
    connect(&watcher_, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString& /*name*/, const QString& /*old*/, const QString& owner) {
                setOwner(owner);
            });
}

void BusService::follow(const QDBusConnection& bus) {
    bus_ = bus;
    owner_.clear();
    watcher_.setConnection(bus);
    watcher_.setWatchedServices({name_});
    whenFinished(this, Bus(bus).GetNameOwner(name_),
                 [this](const QDBusPendingReply<QString>& reply) {
                     if (reply.isValid()) {
                         setOwner(reply.value());
                     } else if (reply.error().name() == noOwner && owner_.isEmpty()) {
                         emit absent();
                     }
                 });
}

void BusService::activate() {
    constexpr uint noFlags = 0;
    whenFinished(this, Bus(bus_).StartServiceByName(name_, noFlags),
                 [this](const QDBusPendingReply<uint>& reply) {
                     if (!reply.isError()) {
                         return;
                     }
                     // After the answer about the owner, which Qt delivers a turn of the event
                     // loop later if it has come before anybody waits for it.
                     QMetaObject::invokeMethod(
                         this,
                         [this] {
                             if (owner_.isEmpty()) {
                                 emit activationFailed();
                             }
                         },
                         Qt::QueuedConnection);
                 });
}

bool BusService::sent(const QDBusContext& signal) const {
    return signal.calledFromDBus() && !owner_.isEmpty() && signal.message().service() == owner_;
}

void BusService::setOwner(const QString& owner) {
    if (owner == owner_) {
        return;
    }
    const bool hadOwner = !owner_.isEmpty();
    owner_ = owner;
    if (hadOwner) {
        emit vanished();
    }
    if (!owner_.isEmpty()) {
        emit appeared();
    }
}

void registerSignalTypes(const QMetaObject& proxy) {
    for (int i = proxy.methodOffset(); i < proxy.methodCount(); ++i) {
        const QMetaMethod method = proxy.method(i);
        if (method.methodType() != QMetaMethod::Signal) {
            continue;
        }
        for (int j = 0; j < method.parameterCount(); ++j) {
            method.parameterMetaType(j).id(); // registers it
        }
    }
}

} // namespace morrowleaf
