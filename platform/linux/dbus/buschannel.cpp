// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/buschannel.h"

#include "application_interface.h"
#include "bus_interface.h"

#include <QTimer>

#include <utility>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString name = u"org.morrowleaf.Morrowleaf"_s;
const QString path = u"/org/morrowleaf/Morrowleaf"_s;
const QString show = u"show"_s;
const QString quit = u"quit"_s;
const QString tokenKey = u"activation-token"_s;

} // namespace

void BusApplication::Activate(const QVariantMap& platformData) {
    ActivateAction(show, {}, platformData);
}

void BusApplication::Open(const QStringList& /*uris*/, const QVariantMap& platformData) {
    Activate(platformData);
}

void BusApplication::ActivateAction(const QString& action, const QVariantList& /*parameters*/,
                                    const QVariantMap& platformData) {
    emit requested({.action = action, .activationToken = platformData.value(tokenKey).toString()});
    // After a request to quit there is no later.
    if (action != quit && calledFromDBus() && message().isReplyRequired()) {
        setDelayedReply(true);
        QTimer::singleShot(
            acceptanceDelay, this,
            [bus = connection(), reply = message().createReply()] { bus.send(reply); });
    }
}

BusListener::BusListener(std::shared_ptr<BusLink> session)
    : session_(std::move(session)) {
    connect(&application_, &BusApplication::requested, this, &RequestListener::requested);
}

void BusListener::listen() {
    connect(session_.get(), &BusLink::up, this, &BusListener::takeName);
    session_->open();
}

void BusListener::takeName() {
    constexpr uint doNotQueue = 4;
    auto bus = session_->bus();
    // The object comes first: a client that finds the name may call at once.
    bus.registerObject(path, &application_, QDBusConnection::ExportAllSlots);
    whenFinished(this, Bus(bus).RequestName(name, doNotQueue),
                 [this](const QDBusPendingReply<uint>& /*reply*/) { emit reachable(); });
}

BusSender::BusSender()
    : link_(QDBusConnection::SessionBus)
    , instance_(name) {
    connect(&link_, &BusLink::up, this, [this] { instance_.follow(link_.bus()); });
    connect(&instance_, &BusService::appeared, this, &BusSender::ping);
    connect(&instance_, &BusService::vanished, this, &RequestSender::failed);
}

void BusSender::reach() {
    link_.open();
}

// An instance that hangs has a name, too.
void BusSender::ping() {
    OrgFreedesktopDBusPeerInterface peer(instance_.owner(), path, link_.bus());
    whenFinished(this, peer.Ping(), [this](const QDBusPendingReply<>& reply) {
        if (reply.isValid()) {
            emit answered();
        }
    });
}

bool BusSender::send(const LaunchRequest& request) {
    if (instance_.owner().isEmpty()) {
        return false;
    }
    // By the unique name: the bus does not start another instance for that.
    OrgFreedesktopApplicationInterface running(instance_.owner(), path, link_.bus());
    QVariantMap platformData;
    if (!request.activationToken.isEmpty()) {
        platformData[tokenKey] = request.activationToken;
    }
    whenFinished(this,
                 request.action == show ? running.Activate(platformData)
                                        : running.ActivateAction(request.action, {}, platformData),
                 [this](const QDBusPendingReply<>& reply) {
                     if (reply.isValid()) {
                         emit accepted();
                     } else {
                         emit failed();
                     }
                 });
    return true;
}

} // namespace morrowleaf
