// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/portalcolorscheme.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace morrowleaf {
namespace {

constexpr QLatin1StringView service{"org.freedesktop.portal.Desktop"};
constexpr QLatin1StringView path{"/org/freedesktop/portal/desktop"};
constexpr QLatin1StringView interface { "org.freedesktop.portal.Settings" };
constexpr QLatin1StringView appearance{"org.freedesktop.appearance"};
constexpr QLatin1StringView colorScheme{"color-scheme"};

// The old call of the portal wraps its answer twice.
QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

} // namespace

PortalColorScheme::PortalColorScheme(QDBusConnection bus) {
    if (!bus.isConnected()) {
        return;
    }
    bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QDBusMessage)));
    QDBusMessage ask =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    ask << QString(appearance) << QString(colorScheme);
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(ask), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid()) {
            take(QVariant::fromValue(reply.value()));
        }
    });
}

void PortalColorScheme::settingChanged(const QDBusMessage& signal) {
    const QVariantList told = signal.arguments();
    if (told.value(0).toString() == appearance && told.value(1).toString() == colorScheme) {
        take(told.value(2));
    }
}

void PortalColorScheme::take(const QVariant& value) {
    bool isNumber = false;
    const uint number = unwrapped(value).toUInt(&isNumber);
    const auto next = isNumber && number == 1   ? ColorPreference::Dark
                      : isNumber && number == 2 ? ColorPreference::Light
                                                : ColorPreference::None;
    if (next != preference_) {
        preference_ = next;
        emit changed(next);
    }
}

} // namespace morrowleaf
