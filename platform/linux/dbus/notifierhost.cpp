// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/notifierhost.h"

#include "bus_interface.h"
#include "statusnotifierwatcher_interface.h"

#include <utility>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

using Watcher = OrgKdeStatusNotifierWatcherInterface;
const QString path = u"/StatusNotifierWatcher"_s;

} // namespace

NotifierHost::NotifierHost(std::shared_ptr<const BusLink> session)
    : session_(std::move(session))
    , service_(QString::fromLatin1(Watcher::staticInterfaceName())) {
    connect(session_.get(), &BusLink::up, this, &NotifierHost::subscribe);
    connect(session_.get(), &BusLink::decided, this, [this] {
        if (!session_->bus().isConnected()) {
            emit settled();
        }
    });
    connect(&service_, &BusService::appeared, this, &NotifierHost::lookForHost);
    connect(&service_, &BusService::absent, this, &NotifierHost::settled);
    connect(&service_, &BusService::vanished, this, &NotifierHost::settled);
}

QIcon NotifierHost::tintedSymbol() const {
    const QString desktop = qEnvironmentVariable("XDG_CURRENT_DESKTOP");
    const bool isTinted =
        desktop.contains("KDE"_L1) || desktop.contains("GNOME"_L1) || desktop.contains("XFCE"_L1);
    return isTinted ? QIcon::fromTheme(u"org.morrowleaf.Morrowleaf-symbolic"_s) : QIcon();
}

void NotifierHost::subscribe() {
    present_ = false;
    subscription_ = std::make_unique<QObject>();
    auto* watcher = new BusSignals<Watcher>(path, session_->bus(), subscription_.get());
    connect(watcher, &Watcher::StatusNotifierHostRegistered, this, [this, watcher] {
        if (service_.sent(*watcher)) {
            lookForHost();
        }
    });
    service_.follow(session_->bus());
}

void NotifierHost::lookForHost() {
    if (present_) {
        return;
    }
    OrgFreedesktopDBusPropertiesInterface properties(service_.owner(), path, session_->bus());
    whenFinished(this,
                 properties.Get(QString::fromLatin1(Watcher::staticInterfaceName()),
                                u"IsStatusNotifierHostRegistered"_s),
                 [this](const QDBusPendingReply<QDBusVariant>& reply) {
                     if (!present_ && reply.isValid() && reply.value().variant().toBool()) {
                         present_ = true;
                         emit appeared();
                     }
                     if (reply.error().type() != QDBusError::NoReply) {
                         emit settled();
                     }
                 });
}

} // namespace morrowleaf
