// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/dbus/buslink.h"
#include "platform/linux/dbus/busservice.h"
#include "platform/trayhost.h"

#include <memory>

namespace morrowleaf {

// Present once a status notifier watcher says that a host has registered. On a
// bus that comes back the host has to register again.
class NotifierHost : public TrayHost {
    Q_OBJECT

public:
    NotifierHost();
    bool isPresent() const override { return present_; }

private:
    void subscribe();
    void lookForHost();

    BusLink link_;
    BusService service_;
    std::unique_ptr<QObject> subscription_; // of the present connection
    bool present_ = false;
};

} // namespace morrowleaf
