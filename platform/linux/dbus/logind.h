// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/dbus/buslink.h"
#include "platform/shared/sessiongate.h"

#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QVariantMap>

namespace morrowleaf {

// Reports to the gate what the login manager says about sleep and about the
// session of this process.
class Logind : public QObject {
    Q_OBJECT

public:
    explicit Logind(SessionGate& gate, QObject* parent = nullptr);

private slots:
    void prepareForSleep(bool begins);
    void lockAsked(const QDBusMessage& message);
    void unlockAsked(const QDBusMessage& message);
    void propertiesChanged(const QString& interface, const QVariantMap& changed,
                           const QStringList& invalidated, const QDBusMessage& message);

private:
    void subscribe();
    void findSession();
    void findSessionByProcess();
    void findSessionOfUser();
    void foundSession(const QString& path);
    void readState();
    void apply(const QVariantMap& properties, bool isChange);
    QDBusPendingCall ask(const QString& path, const QString& interface, const QString& method,
                         const QVariantList& arguments);

    SessionGate& gate_;
    BusLink link_;
    QDBusServiceWatcher watcher_;
    QString session_; // object path, empty while unknown
};

} // namespace morrowleaf
