// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/portalcolorscheme.h"

#include "portal_interface.h"

#include <QDBusVariant>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

using Settings = OrgFreedesktopPortalSettingsInterface;

const QString path = u"/org/freedesktop/portal/desktop"_s;
const QString appearance = u"org.freedesktop.appearance"_s;
const QString colorScheme = u"color-scheme"_s;

// Read() of the portal wraps its value twice.
QVariant unwrapped(const QDBusVariant& value) {
    QVariant inner = value.variant();
    while (inner.canConvert<QDBusVariant>()) {
        inner = inner.value<QDBusVariant>().variant();
    }
    return inner;
}

} // namespace

PortalColorScheme::PortalColorScheme(const QDBusConnection& bus)
    : bus_(bus)
    , portal_(u"org.freedesktop.portal.Desktop"_s) {
    if (!bus_.isConnected()) {
        return;
    }
    auto* settings = new BusSignals<Settings>(path, bus_, this);
    connect(settings, &Settings::SettingChanged, this,
            [this, settings](const QString& group, const QString& key, const QDBusVariant& value) {
                if (group == appearance && key == colorScheme && portal_.sent(*settings)) {
                    apply(value);
                }
            });
    connect(&portal_, &BusService::appeared, this, &PortalColorScheme::read);
    portal_.follow(bus_);
    portal_.activate();
}

void PortalColorScheme::read() {
    Settings settings(portal_.owner(), path, bus_);
    whenFinished(this, settings.Read(appearance, colorScheme),
                 [this](const QDBusPendingReply<QDBusVariant>& reply) {
                     if (reply.isValid()) {
                         apply(reply.value());
                     }
                 });
}

void PortalColorScheme::apply(const QDBusVariant& value) {
    constexpr uint dark = 1;
    constexpr uint light = 2;
    bool isNumber = false;
    const uint number = unwrapped(value).toUInt(&isNumber);
    const auto next = isNumber && number == dark    ? ColorPreference::Dark
                      : isNumber && number == light ? ColorPreference::Light
                                                    : ColorPreference::None;
    if (next != preference_) {
        preference_ = next;
        emit changed(next);
    }
}

} // namespace morrowleaf
