// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/dbus/buslink.h"
#include "platform/singleinstance.h"

#include <QVariant>

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

// The instance is the process that owns the program's name on the session bus.
class BusInstance : public SingleInstance {
    Q_OBJECT

public:
    BusInstance();

    bool claim(const LaunchRequest& request) override;

private:
    bool takeName();
    bool handOver(const LaunchRequest& request);

    BusLink link_;
    BusApplication application_;
};

} // namespace morrowleaf
