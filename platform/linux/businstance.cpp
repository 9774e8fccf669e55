#include "platform/linux/businstance.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>

namespace morrowleaf {

namespace {

const QString name = "org.morrowleaf.Morrowleaf";
const QString path = "/org/morrowleaf/Morrowleaf";
const QString interface = "org.freedesktop.Application";
const QString tokenKey = "activation-token";
constexpr int attempts = 3;         // the other instance may be just ending
constexpr int answerTimeout = 5000; // milliseconds

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

BusInstance::BusInstance(const QDBusConnection& bus)
    : bus_(bus) {
    connect(&application_, &BusApplication::requested, this, &SingleInstance::requested);
}

BusInstance::~BusInstance() {
    bus_.unregisterObject(path);
    bus_.unregisterService(name);
}

bool BusInstance::claim(const LaunchRequest& request) {
    // The object first: whoever finds the name may call at once.
    bus_.registerObject(path, &application_, QDBusConnection::ExportAllSlots);
    for (int i = 0; i < attempts; ++i) {
        const auto reply =
            bus_.interface()->registerService(name, QDBusConnectionInterface::DontQueueService,
                                              QDBusConnectionInterface::DontAllowReplacement);
        if (!reply.isValid() || reply.value() == QDBusConnectionInterface::ServiceRegistered) {
            return true;
        }
        if (handOver(request)) {
            return false;
        }
    }
    return false;
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
    return bus_.call(call, QDBus::Block, answerTimeout).type() == QDBusMessage::ReplyMessage;
}

} // namespace morrowleaf
