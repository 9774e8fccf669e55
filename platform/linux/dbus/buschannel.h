// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/dbus/buslink.h"
#include "platform/linux/dbus/busservice.h"
#include "platform/shared/lockedinstance.h"

#include <QDBusContext>
#include <QVariant>

#include <memory>

namespace morrowleaf {

// The interface org.freedesktop.Application, by which desktops and later
// launches talk to the running instance.
class BusApplication : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    using QObject::QObject;

public slots:
    void Activate(const QVariantMap& platformData);
    void Open(const QStringList& uris, const QVariantMap& platformData);
    void ActivateAction(const QString& action, const QVariantList& parameters,
                        const QVariantMap& platformData);

signals:
    void requested(const morrowleaf::LaunchRequest& request);
};

// Takes the program's name on the session bus, also on every bus that comes back.
class BusListener : public RequestListener {
    Q_OBJECT

public:
    explicit BusListener(std::shared_ptr<BusLink> session);

    // Opens the link.
    void listen() override;

private:
    void takeName();

    std::shared_ptr<BusLink> session_;
    BusApplication application_;
};

// Calls the owner of that name, on a connection of its own.
class BusSender : public RequestSender {
    Q_OBJECT

public:
    BusSender();

    void reach() override;
    bool send(const LaunchRequest& request) override;

private:
    void ping();

    BusLink link_;
    BusService instance_;
};

} // namespace morrowleaf
