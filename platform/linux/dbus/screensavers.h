// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/dbus/buslink.h"
#include "platform/linux/dbus/busservice.h"
#include "platform/shared/sessiongate.h"

#include <map>
#include <memory>

namespace morrowleaf {

// Reports to the gate when a screen saver of the desktop starts and ends: it is
// an inhibitor by its name on the bus, and its end unlocks the screen. That of Plasma also
// reports that it is about to start.
class ScreenSavers : public QObject {
    Q_OBJECT

public:
    // `session` is opened afterwards by whoever created it.
    ScreenSavers(SessionGate& gate, std::shared_ptr<const BusLink> session);

private:
    void subscribe();
    template <typename Saver>
    void listen(const QString& path);
    void listenToPlasma();

    SessionGate& gate_;
    std::shared_ptr<const BusLink> session_;
    std::map<QString, BusService> services_; // by name
    std::unique_ptr<QObject> subscriptions_; // of the present connection
};

} // namespace morrowleaf
