// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/desktopwishes.h"
#include "platform/linux/dbus/buslink.h"
#include "platform/linux/dbus/busservice.h"

#include <QMap>
#include <QVariantMap>

#include <memory>

namespace morrowleaf {

// The settings of the desktop's portal: groups of keys and values.
using PortalSettings = QMap<QString, QVariantMap>;

// What settings say about the wishes: the keys that all portals share and those that
// portals pass on from GNOME and Plasma.
Wishes wishesIn(const PortalSettings& settings);

// The wishes by the desktop portal's settings, which it starts if needed. They arrive
// asynchronously, and again from every bus that comes back.
class PortalWishes : public DesktopWishes {
    Q_OBJECT

public:
    // `session` is opened afterwards by whoever created it.
    explicit PortalWishes(std::shared_ptr<const BusLink> session);

    Wishes current() const override { return wishes_; }

private slots:
    void read();

private:
    void subscribe();
    void apply();

    std::shared_ptr<const BusLink> session_;
    BusService portal_;
    std::unique_ptr<QObject> subscription_; // of the present connection
    PortalSettings settings_;
    Wishes wishes_;
};

} // namespace morrowleaf
