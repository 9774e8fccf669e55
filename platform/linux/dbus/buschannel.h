// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/dbus/buslink.h"
#include "platform/shared/lockedinstance.h"

#include <QTimer>
#include <QVariant>

#include <memory>

namespace morrowleaf {

// The interface org.freedesktop.Application, by which desktops and later
// launches talk to the running instance.
class BusApplication : public QObject {
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

// Passes requests through the session bus, on which the instance takes the program's
// name, also on every bus that comes back.
class BusChannel : public RequestChannel {
    Q_OBJECT

public:
    // Opens `session` itself.
    explicit BusChannel(std::shared_ptr<BusLink> session);

    void serve() override;
    void reach() override;
    bool send(const LaunchRequest& request) override;

private:
    void takeName();
    void findOwner();

    std::shared_ptr<BusLink> session_;
    BusApplication application_;
    QString owner_; // of the name; empty in the instance
    QTimer delay_;
};

} // namespace morrowleaf
