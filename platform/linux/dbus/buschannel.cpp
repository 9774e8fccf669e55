// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/buschannel.h"

#include "application_interface.h"
#include "bus_interface.h"
#include "platform/linux/dbus/busservice.h"

#include <QEventLoop>

#include <chrono>
#include <utility>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString name = u"org.morrowleaf.Morrowleaf"_s;
const QString path = u"/org/morrowleaf/Morrowleaf"_s;
const QString show = u"show"_s;
const QString tokenKey = u"activation-token"_s;
// The socket usually answers at once, and a connection to the bus costs more.
constexpr auto startOfBus = 200ms;
constexpr auto handOverTime = 500ms;

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
}

BusChannel::BusChannel(std::shared_ptr<BusLink> session)
    : session_(std::move(session)) {
    connect(&application_, &BusApplication::requested, this, &RequestChannel::requested);
    delay_.setSingleShot(true);
    delay_.setInterval(startOfBus);
    connect(&delay_, &QTimer::timeout, session_.get(), &BusLink::open);
}

void BusChannel::serve() {
    delay_.stop();
    session_->disconnect(this);
    owner_.clear();
    connect(session_.get(), &BusLink::up, this, &BusChannel::takeName);
    if (session_->bus().isConnected()) {
        takeName();
    }
    session_->open();
}

void BusChannel::takeName() {
    constexpr uint doNotQueue = 4;
    auto bus = session_->bus();
    // The object comes first: a client that finds the name may call at once.
    bus.registerObject(path, &application_, QDBusConnection::ExportAllSlots);
    Bus(bus).RequestName(name, doNotQueue);
}

void BusChannel::reach() {
    connect(session_.get(), &BusLink::up, this, &BusChannel::findOwner);
    delay_.start();
}

void BusChannel::findOwner() {
    whenFinished(this, Bus(session_->bus()).GetNameOwner(name),
                 [this](const QDBusPendingReply<QString>& reply) {
                     if (!reply.isValid()) {
                         return;
                     }
                     owner_ = reply.value();
                     OrgFreedesktopDBusPeerInterface peer(owner_, path, session_->bus());
                     whenFinished(this, peer.Ping(), [this](const QDBusPendingReply<>& answer) {
                         if (answer.isValid()) {
                             emit answered();
                         }
                     });
                 });
}

bool BusChannel::send(const LaunchRequest& request) {
    if (owner_.isEmpty()) {
        return false;
    }
    // By the unique name: the bus does not start another instance for that.
    OrgFreedesktopApplicationInterface running(owner_, path, session_->bus());
    QVariantMap platformData;
    if (!request.activationToken.isEmpty()) {
        platformData[tokenKey] = request.activationToken;
    }
    const QDBusPendingReply<> reply =
        request.action == show ? running.Activate(platformData)
                               : running.ActivateAction(request.action, {}, platformData);
    // Without an answer the instance has the request nevertheless.
    QDBusPendingCallWatcher watcher(reply);
    QEventLoop waiting;
    connect(&watcher, &QDBusPendingCallWatcher::finished, &waiting, &QEventLoop::quit);
    QTimer::singleShot(handOverTime, &waiting, &QEventLoop::quit);
    if (!watcher.isFinished()) {
        waiting.exec();
    }
    return !watcher.isFinished() || !watcher.isError();
}

} // namespace morrowleaf
