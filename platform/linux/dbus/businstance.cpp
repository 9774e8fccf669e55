// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/businstance.h"

#include "application_interface.h"

#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QDeadlineTimer>
#include <QThread>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString name = u"org.morrowleaf.Morrowleaf"_s;
const QString path = u"/org/morrowleaf/Morrowleaf"_s;
const QString show = u"show"_s;
const QString tokenKey = u"activation-token"_s;
constexpr int answerTimeout = 5000; // milliseconds
constexpr int retryTime = 2000;     // milliseconds that another instance may take to end
constexpr int pause = 50;           // milliseconds between attempts

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
    } while (!retries.hasExpired());
    // An instance that does not answer has the request nevertheless.
    return false;
}

bool BusInstance::takeName() {
    auto bus = link_.bus();
    // The object comes first: a client that finds the name may call at once.
    bus.registerObject(path, &application_, QDBusConnection::ExportAllSlots);
    const auto reply =
        bus.interface()->registerService(name, QDBusConnectionInterface::DontQueueService,
                                         QDBusConnectionInterface::DontAllowReplacement);
    return !reply.isValid() || reply.value() == QDBusConnectionInterface::ServiceRegistered;
}

bool BusInstance::handOver(const LaunchRequest& request) {
    // By the unique name: the bus does not start another instance for that.
    const QDBusReply<QString> owner = link_.bus().interface()->serviceOwner(name);
    if (!owner.isValid()) {
        return false;
    }
    OrgFreedesktopApplicationInterface running(owner.value(), path, link_.bus());
    running.setTimeout(answerTimeout);
    QVariantMap platformData;
    if (!request.activationToken.isEmpty()) {
        platformData[tokenKey] = request.activationToken;
    }
    QDBusPendingReply<> reply = request.action == show
                                    ? running.Activate(platformData)
                                    : running.ActivateAction(request.action, {}, platformData);
    reply.waitForFinished();
    return reply.isValid();
}

} // namespace morrowleaf
