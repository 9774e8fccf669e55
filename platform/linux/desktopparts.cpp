// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/desktopparts.h"

#include "platform/linux/dbus/buschannel.h"
#include "platform/linux/dbus/notifierhost.h"
#include "platform/linux/x11/x11parts.h"
#include "platform/shared/socketchannel.h"

#include <QStandardPaths>

#include <utility>

namespace morrowleaf {

namespace {

class EitherTray final : public TrayHost {
public:
    explicit EitherTray(std::shared_ptr<const BusLink> session)
        : notifier_(std::move(session))
        , x11_(makeX11Tray()) {
        connect(&notifier_, &TrayHost::appeared, this, &TrayHost::appeared);
        connect(x11_.get(), &TrayHost::appeared, this, &TrayHost::appeared);
    }
    bool isPresent() const override { return notifier_.isPresent() || x11_->isPresent(); }

private:
    NotifierHost notifier_;
    std::unique_ptr<TrayHost> x11_;
};

} // namespace

std::unique_ptr<TrayHost> makeDesktopTray(std::shared_ptr<const BusLink> session, bool x11) {
    if (x11) {
        return std::make_unique<EitherTray>(std::move(session));
    }
    return std::make_unique<NotifierHost>(std::move(session));
}

std::unique_ptr<SingleInstance> makeDesktopInstance(std::shared_ptr<BusLink> session) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    LockedInstance::Channels channels;
    if (!folder.isEmpty()) {
        channels.push_back(std::make_unique<SocketChannel>(folder));
    }
    channels.push_back(std::make_unique<BusChannel>(std::move(session)));
    return std::make_unique<LockedInstance>(folder, std::move(channels));
}

} // namespace morrowleaf
