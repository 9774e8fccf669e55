// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/logind.h"

#include "bus_interface.h"
#include "login1_interface.h"

#include <QDBusArgument>
#include <QDBusMessage>

#include <optional>
#include <unistd.h>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

using Manager = OrgFreedesktopLogin1ManagerInterface;
using Session = OrgFreedesktopLogin1SessionInterface;
using Properties = OrgFreedesktopDBusPropertiesInterface;
using PathReply = QDBusPendingReply<QDBusObjectPath>;

const QString managerPath = u"/org/freedesktop/login1"_s;
const QString sessionInterface = QString::fromLatin1(Session::staticInterfaceName());
const QString lockedHint = u"LockedHint"_s;
const QString active = u"Active"_s;
const QString lockedInhibitor = u"locked"_s;
const QString inactiveInhibitor = u"inactive"_s;

// The path in a user's "Display", a pair of name and path; empty where the user
// has no graphical session.
QString displayPath(const QVariant& display) {
    if (!display.canConvert<QDBusArgument>()) {
        return {};
    }
    const auto pair = display.value<QDBusArgument>();
    if (pair.currentSignature() != "(so)"_L1) {
        return {};
    }
    QString name;
    QDBusObjectPath path;
    pair.beginStructure();
    pair >> name >> path;
    pair.endStructure();
    return path.path() == "/"_L1 ? QString() : path.path();
}

// A property of type boolean, where it is among `properties`.
std::optional<bool> flagIn(const QVariantMap& properties, const QString& name) {
    const QVariant value = properties.value(name);
    return value.typeId() == QMetaType::Bool ? std::optional(value.toBool()) : std::nullopt;
}

} // namespace

Logind::Logind(SessionGate& gate, QObject* parent)
    : QObject(parent)
    , gate_(gate)
    , link_(QDBusConnection::SystemBus)
    , service_(u"org.freedesktop.login1"_s) {
    connect(&link_, &BusLink::up, this, &Logind::subscribe);
    connect(&service_, &BusService::appeared, this, &Logind::findSession);
    // A login manager that is gone cannot report the end of a state.
    connect(&service_, &BusService::vanished, this, &Logind::liftInhibitors);
    link_.open();
}

void Logind::subscribe() {
    sessionSubscription_.reset();
    subscription_ = std::make_unique<QObject>();
    auto* manager = new BusSignals<Manager>(managerPath, link_.bus(), subscription_.get());
    connect(manager, &Manager::PrepareForSleep, this, [this, manager](bool begins) {
        if (!service_.sent(*manager)) {
            return;
        }
        if (begins) {
            gate_.reportLeaving();
        } else {
            gate_.report(SessionGate::Event::Wake);
        }
    });
    service_.follow(link_.bus());
}

// The session that the environment names, else the one of this process, else
// the user's graphical one: a program that a service manager started is in none.
void Logind::findSession() {
    sessionSubscription_.reset();
    const QString id = qEnvironmentVariable("XDG_SESSION_ID");
    if (id.isEmpty()) {
        findSessionByProcess();
        return;
    }
    Manager manager(service_.owner(), managerPath, link_.bus());
    whenFinished(this, manager.GetSession(id), [this](const PathReply& reply) {
        reply.isValid() ? followSession(reply.value().path()) : findSessionByProcess();
    });
}

void Logind::findSessionByProcess() {
    Manager manager(service_.owner(), managerPath, link_.bus());
    whenFinished(this, manager.GetSessionByPID(static_cast<uint>(getpid())),
                 [this](const PathReply& reply) {
                     reply.isValid() ? followSession(reply.value().path()) : findSessionOfUser();
                 });
}

void Logind::findSessionOfUser() {
    Manager manager(service_.owner(), managerPath, link_.bus());
    whenFinished(this, manager.GetUser(static_cast<uint>(getuid())),
                 [this](const PathReply& reply) {
                     if (reply.isValid()) {
                         findDisplayOf(reply.value().path());
                     }
                 });
}

void Logind::findDisplayOf(const QString& user) {
    Properties properties(service_.owner(), user, link_.bus());
    whenFinished(this, properties.Get(u"org.freedesktop.login1.User"_s, u"Display"_s),
                 [this](const QDBusPendingReply<QDBusVariant>& reply) {
                     const QString path =
                         reply.isValid() ? displayPath(reply.value().variant()) : QString();
                     if (!path.isEmpty()) {
                         followSession(path);
                     }
                 });
}

void Logind::followSession(const QString& path) {
    session_ = path;
    sessionSubscription_ = std::make_unique<QObject>();
    auto* session = new BusSignals<Session>(path, link_.bus(), sessionSubscription_.get());
    connect(session, &Session::Lock, this, [this, session] {
        if (service_.sent(*session)) {
            gate_.reportLeaving();
        }
    });
    connect(session, &Session::Unlock, this, [this, session] {
        if (service_.sent(*session)) {
            gate_.report(SessionGate::Event::Unlocked);
            gate_.setInhibited(lockedInhibitor, false);
        }
    });
    auto* properties = new BusSignals<Properties>(path, link_.bus(), sessionSubscription_.get());
    connect(properties, &Properties::PropertiesChanged, this,
            [this, properties](const QString& interface, const QVariantMap& changed,
                               const QStringList& invalidated) {
                if (interface != sessionInterface || !service_.sent(*properties)) {
                    return;
                }
                apply(changed, Origin::Change);
                if (invalidated.contains(lockedHint) || invalidated.contains(active)) {
                    readState();
                }
            });
    readState();
}

void Logind::readState() {
    Properties properties(service_.owner(), session_, link_.bus());
    whenFinished(this, properties.GetAll(sessionInterface),
                 [this](const QDBusPendingReply<QVariantMap>& reply) {
                     if (reply.isValid()) {
                         apply(reply.value(), Origin::Reading);
                     }
                 });
}

void Logind::apply(const QVariantMap& properties, Origin origin) {
    const auto isLocked = flagIn(properties, lockedHint);
    const auto isActive = flagIn(properties, active);
    // Inhibitors start first, since one message may contain both properties:
    // unlocking a session that is switched away must be queued.
    if (isLocked == true) {
        gate_.setInhibited(lockedInhibitor, true);
    }
    if (isActive == false) {
        gate_.setInhibited(inactiveInhibitor, true);
    }
    if (isLocked == false) {
        if (origin == Origin::Change) {
            gate_.report(SessionGate::Event::Unlocked);
        }
        gate_.setInhibited(lockedInhibitor, false);
    }
    if (isActive == true) {
        if (origin == Origin::Change) {
            gate_.report(SessionGate::Event::Active);
        }
        gate_.setInhibited(inactiveInhibitor, false);
    }
}

void Logind::liftInhibitors() {
    gate_.setInhibited(lockedInhibitor, false);
    gate_.setInhibited(inactiveInhibitor, false);
}

} // namespace morrowleaf
