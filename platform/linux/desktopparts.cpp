// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/desktopparts.h"

#include "platform/linux/dbus/buschannel.h"
#include "platform/linux/dbus/notifierhost.h"
#include "platform/linux/dbus/overview.h"
#include "platform/linux/x11/x11parts.h"
#include "platform/shared/socketchannel.h"

#include <QStandardPaths>

#include <utility>

namespace morrowleaf {

namespace {

// Qt asks the session bus for a tray first, also where the X server has one. So a tray
// of the X server has no item beside a bus that never answers, or while the watcher of
// the status notifiers hangs.
class EitherTray final : public TrayHost {
public:
    explicit EitherTray(const std::shared_ptr<const BusLink>& session)
        : notifier_(session) {
        connect(&notifier_, &TrayHost::appeared, this, &TrayHost::appeared);
        connect(
            &notifier_, &NotifierHost::settled, this,
            [this] {
                x11_ = makeX11Tray();
                connect(x11_.get(), &TrayHost::appeared, this, &TrayHost::appeared);
            },
            Qt::SingleShotConnection);
    }

    QIcon tintedSymbol() const override { return notifier_.tintedSymbol(); }

private:
    NotifierHost notifier_;
    std::unique_ptr<TrayHost> x11_; // null until Qt would not wait for the bus
};

class OverlaysOverShell final : public OverlayMaker {
public:
    OverlaysOverShell(std::unique_ptr<OverlayMaker> overlays,
                      std::shared_ptr<const BusLink> session, const RequestListener& requests)
        : overlays_(std::move(overlays))
        , overview_(std::move(session)) {
        QObject::connect(&requests, &RequestListener::requested, &overview_, &Overview::leave);
    }

    std::unique_ptr<OverlayWindow> make(QWidget& window, QScreen& screen,
                                        const OverlaySetup& setup) override {
        auto overlay = overlays_->make(window, screen, setup);
        if (setup.level == WindowLevel::ScreenSaver) {
            overview_.makeWayFor(window);
        }
        return overlay;
    }

private:
    std::unique_ptr<OverlayMaker> overlays_;
    Overview overview_;
};

class DesktopRequests final : public RequestListener {
public:
    DesktopRequests(const QString& folder, std::shared_ptr<BusLink> session)
        : bus_(std::move(session)) {
        connect(&bus_, &RequestListener::requested, this, &RequestListener::requested);
        connect(&bus_, &RequestListener::reachable, this, &RequestListener::reachable);
        if (!folder.isEmpty()) {
            socket_ = std::make_unique<SocketListener>(folder);
            connect(socket_.get(), &RequestListener::requested, this, &RequestListener::requested);
        }
    }
    void listen() override {
        if (socket_) {
            socket_->listen();
        }
        bus_.listen();
    }

private:
    std::unique_ptr<SocketListener> socket_; // null without a folder for it
    BusListener bus_;
};

QString runtimeFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
}

} // namespace

std::unique_ptr<TrayHost> makeDesktopTray(std::shared_ptr<const BusLink> session, bool x11) {
    if (x11) {
        return std::make_unique<EitherTray>(session);
    }
    return std::make_unique<NotifierHost>(std::move(session));
}

std::unique_ptr<OverlayMaker> makeOverlaysOverShell(std::unique_ptr<OverlayMaker> overlays,
                                                    std::shared_ptr<const BusLink> session,
                                                    const RequestListener& requests) {
    return std::make_unique<OverlaysOverShell>(std::move(overlays), std::move(session), requests);
}

std::unique_ptr<SingleInstance> makeDesktopInstance() {
    const QString folder = runtimeFolder();
    return std::make_unique<LockedInstance>(folder, [folder] {
        LockedInstance::Senders senders;
        if (!folder.isEmpty()) {
            senders.push_back(std::make_unique<SocketSender>(folder));
        }
        senders.push_back(std::make_unique<BusSender>());
        return senders;
    });
}

std::unique_ptr<RequestListener> makeDesktopRequests(std::shared_ptr<BusLink> session) {
    return std::make_unique<DesktopRequests>(runtimeFolder(), std::move(session));
}

} // namespace morrowleaf
