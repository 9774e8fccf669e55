// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/logind.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <optional>
#include <unistd.h>

namespace morrowleaf {

namespace {

const QString service = "org.freedesktop.login1";
const QString managerPath = "/org/freedesktop/login1";
const QString managerInterface = "org.freedesktop.login1.Manager";
const QString sessionInterface = "org.freedesktop.login1.Session";
const QString userInterface = "org.freedesktop.login1.User";
const QString propertiesInterface = "org.freedesktop.DBus.Properties";
const QString lockedInhibitor = "locked";
const QString inactiveInhibitor = "inactive";

template <typename Answer>
void whenAnswered(QObject* owner, const QDBusPendingCall& call, Answer answer) {
    auto* watcher = new QDBusPendingCallWatcher(call, owner);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, owner,
                     [answer](QDBusPendingCallWatcher* finished) {
                         finished->deleteLater();
                         answer(finished->reply());
                     });
}

QString pathIn(const QDBusMessage& reply) {
    if (reply.type() != QDBusMessage::ReplyMessage) {
        return {};
    }
    return reply.arguments().value(0).value<QDBusObjectPath>().path();
}

// The second half of the pair (name, path) that a user's "Display" is.
QString displaySession(const QDBusMessage& reply) {
    const QVariant value = reply.arguments().value(0).value<QDBusVariant>().variant();
    if (reply.type() != QDBusMessage::ReplyMessage || !value.canConvert<QDBusArgument>()) {
        return {};
    }
    const auto pair = value.value<QDBusArgument>();
    if (pair.currentSignature() != "(so)") {
        return {};
    }
    QString name;
    QDBusObjectPath path;
    pair.beginStructure();
    pair >> name >> path;
    pair.endStructure();
    return path.path() == "/" ? QString() : path.path();
}

} // namespace

Logind::Logind(SessionGate& gate, QObject* parent)
    : QObject(parent)
    , gate_(gate)
    , link_(QDBusConnection::SystemBus) {
    connect(&link_, &BusLink::up, this, &Logind::subscribe);
    connect(&watcher_, &QDBusServiceWatcher::serviceRegistered, this, &Logind::findSession);
    connect(&watcher_, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
        // Nobody would lift what a vanished manager has said.
        gate_.setInhibited(lockedInhibitor, false);
        gate_.setInhibited(inactiveInhibitor, false);
    });
    link_.open();
}

void Logind::subscribe() {
    QDBusConnection bus = link_.bus();
    watcher_.setConnection(bus);
    watcher_.setWatchedServices({service});
    bus.connect(service, managerPath, managerInterface, "PrepareForSleep", this,
                SLOT(prepareForSleep(bool)));
    // Without a path: which session is ours may be known only later.
    bus.connect(service, {}, sessionInterface, "Lock", this, SLOT(lockAsked(QDBusMessage)));
    bus.connect(service, {}, sessionInterface, "Unlock", this, SLOT(unlockAsked(QDBusMessage)));
    bus.connect(service, {}, propertiesInterface, "PropertiesChanged", this,
                SLOT(propertiesChanged(QString, QVariantMap, QStringList, QDBusMessage)));
    findSession();
}

QDBusPendingCall Logind::ask(const QString& path, const QString& interface, const QString& method,
                             const QVariantList& arguments) {
    auto message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setAutoStartService(false);
    message.setArguments(arguments);
    return link_.bus().asyncCall(message);
}

void Logind::findSession() {
    session_.clear();
    const QString id = qEnvironmentVariable("XDG_SESSION_ID");
    if (id.isEmpty()) {
        findSessionByProcess();
        return;
    }
    whenAnswered(this, ask(managerPath, managerInterface, "GetSession", {id}),
                 [this](const QDBusMessage& reply) {
                     const QString path = pathIn(reply);
                     path.isEmpty() ? findSessionByProcess() : foundSession(path);
                 });
}

void Logind::findSessionByProcess() {
    whenAnswered(
        this, ask(managerPath, managerInterface, "GetSessionByPID", {static_cast<uint>(getpid())}),
        [this](const QDBusMessage& reply) {
            const QString path = pathIn(reply);
            path.isEmpty() ? findSessionOfUser() : foundSession(path);
        });
}

void Logind::findSessionOfUser() {
    whenAnswered(this, ask(managerPath, managerInterface, "GetUser", {static_cast<uint>(getuid())}),
                 [this](const QDBusMessage& reply) {
                     const QString user = pathIn(reply);
                     if (user.isEmpty()) {
                         return;
                     }
                     whenAnswered(this,
                                  ask(user, propertiesInterface, "Get", {userInterface, "Display"}),
                                  [this](const QDBusMessage& display) {
                                      foundSession(displaySession(display));
                                  });
                 });
}

void Logind::foundSession(const QString& path) {
    session_ = path;
    if (!path.isEmpty()) {
        readState();
    }
}

void Logind::readState() {
    whenAnswered(this, ask(session_, propertiesInterface, "GetAll", {sessionInterface}),
                 [this](const QDBusMessage& reply) {
                     if (reply.type() == QDBusMessage::ReplyMessage) {
                         apply(qdbus_cast<QVariantMap>(reply.arguments().value(0)), false);
                     }
                 });
}

void Logind::prepareForSleep(bool begins) {
    if (begins) {
        gate_.reportLeaving();
    } else {
        gate_.report(SessionGate::Event::Wake);
    }
}

void Logind::lockAsked(const QDBusMessage& message) {
    if (message.path() == session_) {
        gate_.reportLeaving();
    }
}

void Logind::unlockAsked(const QDBusMessage& message) {
    if (message.path() == session_) {
        gate_.report(SessionGate::Event::Unlocked);
        gate_.setInhibited(lockedInhibitor, false);
    }
}

void Logind::propertiesChanged(const QString& interface, const QVariantMap& changed,
                               const QStringList& invalidated, const QDBusMessage& message) {
    if (interface != sessionInterface || message.path() != session_) {
        return;
    }
    apply(changed, true);
    if (invalidated.contains("LockedHint") || invalidated.contains("Active")) {
        readState();
    }
}

void Logind::apply(const QVariantMap& properties, bool isChange) {
    const auto told = [&properties](const char* name) -> std::optional<bool> {
        const auto found = properties.find(name);
        return found == properties.end() || found->typeId() != QMetaType::Bool
                   ? std::nullopt
                   : std::optional(found->toBool());
    };
    const auto lockedHint = told("LockedHint");
    const auto active = told("Active");
    // What bars comes first: both may be told at once.
    if (lockedHint == true) {
        gate_.setInhibited(lockedInhibitor, true);
    }
    if (active == false) {
        gate_.setInhibited(inactiveInhibitor, true);
    }
    if (lockedHint == false) {
        if (isChange) {
            gate_.report(SessionGate::Event::Unlocked);
        }
        gate_.setInhibited(lockedInhibitor, false);
    }
    if (active == true) {
        if (isChange) {
            gate_.report(SessionGate::Event::Active);
        }
        gate_.setInhibited(inactiveInhibitor, false);
    }
}

} // namespace morrowleaf
