// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/portalwishes.h"

#include "portal_interface.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

using Settings = OrgFreedesktopPortalSettingsInterface;

const QString path = u"/org/freedesktop/portal/desktop"_s;

const QString appearance = u"org.freedesktop.appearance"_s;
const QString gnome = u"org.gnome.desktop.interface"_s;
const QString gnomeAccess = u"org.gnome.desktop.a11y.interface"_s;
const QString plasma = u"org.kde.kdeglobals.KDE"_s;
const QString plasmaColors = u"org.kde.kdeglobals.General"_s;
const QStringList groups{appearance, gnome, gnomeAccess, plasma, plasmaColors};

std::optional<uint> numberIn(const QVariant& value) {
    bool isNumber = false;
    const uint number = value.toUInt(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

ColorPreference colorsIn(const QVariant& scheme) {
    constexpr uint dark = 1;
    constexpr uint light = 2;
    const auto number = numberIn(scheme);
    return number == dark    ? ColorPreference::Dark
           : number == light ? ColorPreference::Light
                             : ColorPreference::None;
}

// Three numbers from 0 to 1; others mean that there is no accent.
QColor colorIn(const QVariant& triple) {
    if (!triple.canConvert<QDBusArgument>()) {
        return {};
    }
    const auto structure = triple.value<QDBusArgument>();
    if (structure.currentSignature() != "(ddd)"_L1) {
        return {};
    }
    std::array<double, 3> parts{};
    structure.beginStructure();
    for (double& part : parts) {
        structure >> part;
    }
    structure.endStructure();
    if (!std::ranges::all_of(parts, [](double part) { return part >= 0 && part <= 1; })) {
        return {};
    }
    const auto byte = [](double part) { return static_cast<int>(std::lround(part * 255)); };
    return {byte(parts[0]), byte(parts[1]), byte(parts[2])};
}

// Plasma writes three numbers from 0 to 255, with commas.
QColor plasmaColorIn(const QString& text) {
    const QStringList parts = text.split(u',');
    return parts.size() == 3 ? QColor(parts[0].toInt(), parts[1].toInt(), parts[2].toInt())
                             : QColor();
}

bool isZero(const QString& factor) {
    bool isNumber = false;
    return factor.toDouble(&isNumber) == 0 && isNumber;
}

// Some portals wrap a value twice.
QVariant unwrapped(const QDBusVariant& value) {
    QVariant inner = value.variant();
    while (inner.canConvert<QDBusVariant>()) {
        inner = inner.value<QDBusVariant>().variant();
    }
    return inner;
}

} // namespace

Wishes wishesIn(const PortalSettings& settings) {
    const auto value = [&](const QString& group, const QString& key) {
        return settings.value(group).value(key);
    };
    const auto isOff = [](const QVariant& flag) {
        return flag.typeId() == QMetaType::Bool && !flag.toBool();
    };
    Wishes wishes;
    wishes.colors = colorsIn(value(appearance, u"color-scheme"_s));
    wishes.accent = colorIn(value(appearance, u"accent-color"_s));
    if (!wishes.accent.isValid()) {
        wishes.accent = plasmaColorIn(value(plasmaColors, u"AccentColor"_s).toString());
    }
    wishes.reducedMotion = numberIn(value(appearance, u"reduced-motion"_s)) == 1U ||
                           isOff(value(gnome, u"enable-animations"_s)) ||
                           isZero(value(plasma, u"AnimationDurationFactor"_s).toString());
    wishes.highContrast = numberIn(value(appearance, u"contrast"_s)) == 1U ||
                          value(gnomeAccess, u"high-contrast"_s).toBool();
    return wishes;
}

PortalWishes::PortalWishes(std::shared_ptr<const BusLink> session)
    : session_(std::move(session))
    , portal_(u"org.freedesktop.portal.Desktop"_s) {
    qDBusRegisterMetaType<PortalSettings>();
    connect(session_.get(), &BusLink::up, this, &PortalWishes::subscribe);
    connect(&portal_, &BusService::appeared, this, &PortalWishes::read);
}

void PortalWishes::subscribe() {
    subscription_ = std::make_unique<QObject>();
    auto* settings = new BusSignals<Settings>(path, session_->bus(), subscription_.get());
    connect(settings, &Settings::SettingChanged, this,
            [this, settings](const QString& group, const QString& key, const QDBusVariant& value) {
                if (groups.contains(group) && portal_.sent(*settings)) {
                    settings_[group][key] = unwrapped(value);
                    apply();
                }
            });
    // Plasma's portal does not announce how long animations last.
    QDBusConnection(session_->bus())
        .connect({}, u"/kdeglobals"_s, u"org.kde.kconfig.notify"_s, u"ConfigChanged"_s, this,
                 SLOT(read()));
    portal_.follow(session_->bus());
    portal_.activate();
}

void PortalWishes::read() {
    if (portal_.owner().isEmpty()) {
        return;
    }
    Settings settings(portal_.owner(), path, session_->bus());
    whenFinished(this, settings.ReadAll(groups),
                 [this](const QDBusPendingReply<PortalSettings>& reply) {
                     if (reply.isValid()) {
                         settings_ = reply.value();
                         apply();
                     }
                 });
}

void PortalWishes::apply() {
    const Wishes next = wishesIn(settings_);
    if (next != wishes_) {
        wishes_ = next;
        emit changed(next);
    }
}

} // namespace morrowleaf
