// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/screensavers.h"

#include "screensavers_interface.h"

#include <utility>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

ScreenSavers::ScreenSavers(SessionGate& gate, std::shared_ptr<const BusLink> session)
    : gate_(gate)
    , session_(std::move(session)) {
    connect(session_.get(), &BusLink::up, this, &ScreenSavers::subscribe);
}

void ScreenSavers::subscribe() {
    subscriptions_ = std::make_unique<QObject>();
    listen<OrgFreedesktopScreenSaverInterface>(u"/org/freedesktop/ScreenSaver"_s);
    listen<OrgFreedesktopScreenSaverInterface>(u"/ScreenSaver"_s);
    listen<OrgGnomeScreenSaverInterface>(u"/org/gnome/ScreenSaver"_s);
    listen<OrgCinnamonScreenSaverInterface>(u"/org/cinnamon/ScreenSaver"_s);
    listen<OrgMateScreenSaverInterface>(u"/org/mate/ScreenSaver"_s);
    listen<OrgXfceScreenSaverInterface>(u"/org/xfce/ScreenSaver"_s);
    listenToPlasma();
    for (auto& [name, service] : services_) {
        service.follow(session_->bus());
    }
}

template <typename Saver>
void ScreenSavers::listen(const QString& path) {
    // Each service has the name of its interface.
    const QString name = QString::fromLatin1(Saver::staticInterfaceName());
    const auto [found, isNew] = services_.try_emplace(name, name);
    BusService& service = found->second;
    if (isNew) {
        // A screen saver that is gone no longer covers the screen.
        connect(&service, &BusService::vanished, this,
                [this, name] { gate_.setInhibited(name, false); });
    }
    auto* saver = new BusSignals<Saver>(path, session_->bus(), subscriptions_.get());
    connect(saver, &Saver::ActiveChanged, this, [this, name, saver, &service](bool active) {
        if (!service.sent(*saver)) {
            return;
        }
        if (!active) {
            gate_.report(SessionGate::Event::Unlocked);
        }
        gate_.setInhibited(name, active);
    });
}

void ScreenSavers::listenToPlasma() {
    const BusService& service = services_.at(
        QString::fromLatin1(OrgFreedesktopScreenSaverInterface::staticInterfaceName()));
    using Locker = OrgKdeScreensaverInterface;
    for (const QString& path : {u"/ScreenSaver"_s, u"/org/freedesktop/ScreenSaver"_s}) {
        auto* locker = new BusSignals<Locker>(path, session_->bus(), subscriptions_.get());
        connect(locker, &Locker::AboutToLock, this, [this, locker, &service] {
            if (service.sent(*locker)) {
                gate_.reportLeaving();
            }
        });
    }
}

} // namespace morrowleaf
