// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/desktopparts.h"

#include "platform/linux/dbus/businstance.h"
#include "platform/linux/dbus/notifierhost.h"
#include "platform/linux/x11/x11parts.h"
#include "platform/shared/socketinstance.h"

#include <QStandardPaths>

namespace morrowleaf {

namespace {

class EitherTray final : public TrayHost {
public:
    EitherTray()
        : x11_(makeX11Tray()) {
        connect(&notifier_, &TrayHost::appeared, this, &TrayHost::appeared);
        connect(x11_.get(), &TrayHost::appeared, this, &TrayHost::appeared);
    }
    bool isPresent() const override { return notifier_.isPresent() || x11_->isPresent(); }

private:
    NotifierHost notifier_;
    std::unique_ptr<TrayHost> x11_;
};

} // namespace

std::unique_ptr<TrayHost> makeDesktopTray(bool x11) {
    if (x11) {
        return std::make_unique<EitherTray>();
    }
    return std::make_unique<NotifierHost>();
}

std::unique_ptr<SingleInstance> makeDesktopInstance() {
    if (QDBusConnection::sessionBus().isConnected()) {
        return std::make_unique<BusInstance>();
    }
    return std::make_unique<SocketInstance>(
        QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
}

} // namespace morrowleaf
