// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/businstance.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDeadlineTimer>
#include <QThread>

namespace morrowleaf {

namespace {

const QString name = "org.morrowleaf.Morrowleaf";
const QString path = "/org/morrowleaf/Morrowleaf";
const QString interface = "org.freedesktop.Application";
const QString tokenKey = "activation-token";
constexpr int answerTimeout = 5000; // milliseconds
constexpr int retryTime = 2000;     // milliseconds that another instance may take to end
constexpr int pause = 50;           // milliseconds between attempts

} // namespace

void BusApplication::Activate(const QVariantMap& platformData) {
    ActivateAction("show", {}, platformData);
}

void BusApplication::Open(const QStringList& /*uris*/, const QVariantMap& platformData) {
    Activate(platformData);
}

void BusApplication::ActivateAction(const QString& action, const QVariantList& /*parameters*/,
                                    const QVariantMap& platformData) {
    emit requested({.action = action, .activationToken = platformData.value(tokenKey).toString()});
}

BusInstance::BusInstance()
    : link_(QDBusConnection::SessionBus) {
    connect(&application_, &BusApplication::requested, this, &SingleInstance::requested);
}

bool BusInstance::claim(const LaunchRequest& request) {
    link_.open();
    if (!link_.bus().isConnected()) {
        return true;
    }
    const QDeadlineTimer retries(retryTime);
    do {
        if (takeName()) {
            // A bus that comes back has forgotten the name.
            connect(&link_, &BusLink::up, this, &BusInstance::takeName);
            return true;
        }
        if (handOver(request)) {
            return false;
        }
        QThread::msleep(pause);
    } while (!retries.hasExpired()); // one that hangs has the request, and once is enough
    return false;
}

bool BusInstance::takeName() {
    auto bus = link_.bus();
    // The object first: whoever finds the name may call at once.
    bus.registerObject(path, &application_, QDBusConnection::ExportAllSlots);
    const auto reply =
        bus.interface()->registerService(name, QDBusConnectionInterface::DontQueueService,
                                         QDBusConnectionInterface::DontAllowReplacement);
    return !reply.isValid() || reply.value() == QDBusConnectionInterface::ServiceRegistered;
}

bool BusInstance::handOver(const LaunchRequest& request) {
    QVariantMap platformData;
    if (!request.activationToken.isEmpty()) {
        platformData[tokenKey] = request.activationToken;
    }
    const bool plain = request.action == "show";
    auto call = QDBusMessage::createMethodCall(name, path, interface,
                                               plain ? "Activate" : "ActivateAction");
    call.setAutoStartService(false);
    if (plain) {
        call.setArguments({platformData});
    } else {
        call.setArguments({request.action, QVariantList(), platformData});
    }
    return link_.bus().call(call, QDBus::Block, answerTimeout).type() == QDBusMessage::ReplyMessage;
}

} // namespace morrowleaf
