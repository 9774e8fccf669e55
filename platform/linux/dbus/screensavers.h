// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/dbus/buslink.h"
#include "platform/shared/sessiongate.h"

#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>

namespace morrowleaf {

// Reports to the gate when a screen saver of the desktop begins and ends.
class ScreenSavers : public QObject {
    Q_OBJECT

public:
    explicit ScreenSavers(SessionGate& gate, QObject* parent = nullptr);

private slots:
    void activeChanged(bool active, const QDBusMessage& message);

private:
    void subscribe();

    SessionGate& gate_;
    BusLink link_;
    QDBusServiceWatcher watcher_;
};

} // namespace morrowleaf
