// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/dbus/buslink.h"
#include "platform/linux/dbus/busservice.h"
#include "platform/notifications.h"

#include <memory>
#include <optional>

namespace morrowleaf {

// Messages of the desktop's notification service, or of its portal in a sandbox; the bus
// starts either if needed.
class BusNotifications : public Notifications {
    Q_OBJECT

public:
    // `session` is opened by whoever created it.
    BusNotifications(std::shared_ptr<const BusLink> session, bool isSandboxed);

    void show(const Notification& notification, std::function<void(bool)> done) override;

private:
    void send();
    void sendToPortal();
    void finish(bool isTaken);

    std::shared_ptr<const BusLink> session_;
    BusService service_;
    std::unique_ptr<QObject> subscription_; // of the present connection
    Notification notification_;
    std::function<void(bool)> done_; // null while nothing is sent
    std::optional<uint> id_;         // of the message that was taken
};

} // namespace morrowleaf
