// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/screensavers.h"

#include <array>

namespace morrowleaf {

namespace {

struct Saver {
    const char* service; // and interface
    const char* path;
};
constexpr std::array savers{
    Saver{"org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver"},
    Saver{"org.freedesktop.ScreenSaver", "/ScreenSaver"},
    Saver{"org.gnome.ScreenSaver", "/org/gnome/ScreenSaver"},
    Saver{"org.cinnamon.ScreenSaver", "/org/cinnamon/ScreenSaver"},
    Saver{"org.mate.ScreenSaver", "/org/mate/ScreenSaver"},
    Saver{"org.xfce.ScreenSaver", "/org/xfce/ScreenSaver"},
};

} // namespace

ScreenSavers::ScreenSavers(SessionGate& gate, QObject* parent)
    : QObject(parent)
    , gate_(gate)
    , link_(QDBusConnection::SessionBus) {
    connect(&link_, &BusLink::up, this, &ScreenSavers::subscribe);
    // A screen saver that is gone covers nothing.
    connect(&watcher_, &QDBusServiceWatcher::serviceUnregistered, this,
            [this](const QString& service) { gate_.setInhibited(service, false); });
    link_.open();
}

void ScreenSavers::subscribe() {
    QDBusConnection bus = link_.bus();
    watcher_.setConnection(bus);
    QStringList services;
    for (const Saver& saver : savers) {
        services << saver.service;
        bus.connect(saver.service, saver.path, saver.service, "ActiveChanged", this,
                    SLOT(activeChanged(bool, QDBusMessage)));
    }
    services.removeDuplicates();
    watcher_.setWatchedServices(services);
}

void ScreenSavers::activeChanged(bool active, const QDBusMessage& message) {
    if (!active) {
        gate_.report(SessionGate::Event::Unlocked);
    }
    gate_.setInhibited(message.interface(), active);
}

} // namespace morrowleaf
