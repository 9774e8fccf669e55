// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/desktopinstance.h"

#include "platform/linux/dbus/businstance.h"
#include "platform/shared/socketinstance.h"

#include <QStandardPaths>

namespace morrowleaf {

std::unique_ptr<SingleInstance> makeDesktopInstance() {
    if (QDBusConnection::sessionBus().isConnected()) {
        return std::make_unique<BusInstance>();
    }
    return std::make_unique<SocketInstance>(
        QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
}

} // namespace morrowleaf
