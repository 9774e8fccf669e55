// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/busnotifications.h"

#include "notifications_interface.h"
#include "portal_interface.h"

#include <QTimer>

#include <utility>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

using Service = OrgFreedesktopNotificationsInterface;
using Portal = OrgFreedesktopPortalNotificationInterface;

const QString path = u"/org/freedesktop/Notifications"_s;
const QString program = u"org.morrowleaf.Morrowleaf"_s;
constexpr int chosenByService = -1; // how long a message stays

} // namespace

BusNotifications::BusNotifications(std::shared_ptr<const BusLink> session, bool isSandboxed)
    : session_(std::move(session))
    , service_(isSandboxed ? u"org.freedesktop.portal.Desktop"_s
                           : QString::fromLatin1(Service::staticInterfaceName())) {
    connect(&service_, &BusService::appeared, this,
            isSandboxed ? &BusNotifications::sendToPortal : &BusNotifications::send);
    connect(&service_, &BusService::activationFailed, this, [this] { finish(false); });
}

void BusNotifications::show(const Notification& notification, std::function<void(bool)> done) {
    notification_ = notification;
    done_ = std::move(done);
    if (!session_->bus().isConnected()) {
        QTimer::singleShot(0, this, [this] { finish(false); });
        return;
    }
    subscription_ = std::make_unique<QObject>();
    auto* answers = new BusSignals<Service>(path, session_->bus(), subscription_.get());
    connect(answers, &Service::ActionInvoked, this, [this, answers](uint id) {
        if (id == id_ && service_.sent(*answers)) {
            emit clicked();
        }
    });
    service_.follow(session_->bus());
    service_.activate();
}

void BusNotifications::send() {
    if (!done_) {
        return; // another service has taken the place of the one that has the message
    }
    // The key "default" stands for a click on the message itself.
    const QStringList actions{u"default"_s, notification_.button, u"settings"_s,
                              notification_.button};
    Service service(service_.owner(), path, session_->bus());
    whenFinished(this,
                 service.Notify(u"Morrowleaf"_s, 0, program, notification_.title,
                                notification_.text, actions, {{u"desktop-entry"_s, program}},
                                chosenByService),
                 [this](const QDBusPendingReply<uint>& reply) {
                     if (reply.isValid()) {
                         id_ = reply.value();
                     }
                     finish(reply.isValid());
                 });
}

// A click arrives as the action of the application with that name.
void BusNotifications::sendToPortal() {
    if (!done_) {
        return;
    }
    const QString action = u"app.settings"_s;
    Portal portal(service_.owner(), u"/org/freedesktop/portal/desktop"_s, session_->bus());
    whenFinished(this,
                 portal.AddNotification(u"message"_s, {{u"title"_s, notification_.title},
                                                       {u"body"_s, notification_.text},
                                                       {u"default-action"_s, action}}),
                 [this](const QDBusPendingReply<>& reply) { finish(!reply.isError()); });
}

void BusNotifications::finish(bool isTaken) {
    if (const auto done = std::exchange(done_, nullptr)) {
        done(isTaken);
    }
}

} // namespace morrowleaf
