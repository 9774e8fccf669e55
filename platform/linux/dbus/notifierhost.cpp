// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/notifierhost.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace morrowleaf {

namespace {

const QString service = "org.kde.StatusNotifierWatcher";
const QString path = "/StatusNotifierWatcher";
const QString hostRegistered = "IsStatusNotifierHostRegistered";

} // namespace

NotifierHost::NotifierHost()
    : link_(QDBusConnection::SessionBus) {
    connect(&link_, &BusLink::up, this, &NotifierHost::subscribe);
    connect(&watcher_, &QDBusServiceWatcher::serviceRegistered, this, &NotifierHost::look);
    link_.open();
}

void NotifierHost::subscribe() {
    auto bus = link_.bus();
    // Hosts of a bus that came back know nothing of items on the old one.
    present_ = false;
    watcher_.setConnection(bus);
    watcher_.setWatchedServices({service});
    bus.connect(service, path, service, "StatusNotifierHostRegistered", this, SLOT(look()));
    look();
}

void NotifierHost::look() {
    if (present_) {
        return;
    }
    auto call =
        QDBusMessage::createMethodCall(service, path, "org.freedesktop.DBus.Properties", "Get");
    call.setAutoStartService(false);
    call.setArguments({service, hostRegistered});
    auto* answer = new QDBusPendingCallWatcher(link_.bus().asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid() && reply.value().variant().toBool()) {
            found();
        }
    });
}

void NotifierHost::found() {
    if (!present_) {
        present_ = true;
        emit appeared();
    }
}

} // namespace morrowleaf
