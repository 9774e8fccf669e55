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
    // `session` is opened afterwards by whoever created it.
    explicit NotifierHost(std::shared_ptr<const BusLink> session);
    QIcon tintedSymbol() const override;
    // Of a tray on Wayland, where only the tray can place a menu.
    Click click() const override { return Click::ShowsQuote; }

signals:
    // Qt, which asks the same on the main thread, would not wait now: the watcher has
    // answered, or there is none.
    void settled();

private:
    void subscribe();
    void lookForHost();

    std::shared_ptr<const BusLink> session_;
    BusService service_;
    std::unique_ptr<QObject> subscription_; // of the present connection
    bool present_ = false;
};

} // namespace morrowleaf
