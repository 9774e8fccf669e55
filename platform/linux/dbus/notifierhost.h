// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/dbus/buslink.h"
#include "platform/trayhost.h"

#include <QDBusServiceWatcher>

namespace morrowleaf {

// Present once a status notifier watcher says that a host has registered; anew
// on a bus that comes back.
class NotifierHost : public TrayHost {
    Q_OBJECT

public:
    NotifierHost();
    bool isPresent() const override { return present_; }

private slots:
    void look();

private:
    void subscribe();
    void found();

    BusLink link_;
    QDBusServiceWatcher watcher_;
    bool present_ = false;
};

} // namespace morrowleaf
