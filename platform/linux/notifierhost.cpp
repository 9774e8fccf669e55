#include "platform/linux/notifierhost.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace morrowleaf {

namespace {

const QString service = "org.kde.StatusNotifierWatcher";
const QString path = "/StatusNotifierWatcher";
const QString hostRegistered = "IsStatusNotifierHostRegistered";

} // namespace

NotifierHost::NotifierHost() {
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return;
    }
    watcher_.setConnection(bus);
    watcher_.setWatchedServices({service});
    connect(&watcher_, &QDBusServiceWatcher::serviceRegistered, this, &NotifierHost::look);
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
    auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
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
