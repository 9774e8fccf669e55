// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settings/prefs.h"

#include "settings/settingsstore.h"

namespace morrowleaf {

namespace {

using namespace Qt::Literals::StringLiterals;

// Undefined for a setting without a default.
struct FactoryValue {
    QJsonValue operator()(const TextSetting* setting) const {
        return setting->initial ? QJsonValue(*setting->initial) : QJsonValue::Undefined;
    }
    QJsonValue operator()(const TextListSetting* /*setting*/) const {
        return QJsonValue::Undefined;
    }
    QJsonValue operator()(const auto* setting) const { return setting->initial; }
};

QJsonValue factoryValue(const AnySetting& setting) {
    return std::visit(FactoryValue(), setting);
}

QString keyOf(const AnySetting& setting) {
    return std::visit([](const auto* row) { return QString(row->key); }, setting);
}

} // namespace

void registerAppDefaults(SettingsStore& store) {
    QJsonObject defaults;
    for (const AnySetting& setting : allSettings) {
        const QJsonValue value = factoryValue(setting);
        if (!value.isUndefined()) {
            defaults.insert(keyOf(setting), value);
        }
    }
    store.registerDefaults(defaults);
}

void resetAppearance(SettingsStore& store) {
    for (const AnySetting& setting : settingsOfReset) {
        store.set(keyOf(setting), factoryValue(setting));
    }
}

FontDesign fontDesignNamed(const QString& name) {
    if (name == "sans"_L1) {
        return FontDesign::Default;
    }
    if (name == "rounded"_L1) {
        return FontDesign::Rounded;
    }
    if (name == "mono"_L1) {
        return FontDesign::Monospaced;
    }
    return FontDesign::Serif;
}

namespace Prefs {

qint64 paletteIndex(const SettingsStore& store) {
    return store.integer(K::palette);
}

double textScale(const SettingsStore& store) {
    return store.real(K::textScale);
}

bool grain(const SettingsStore& store) {
    return store.flag(K::grain);
}

double vignette(const SettingsStore& store) {
    return store.real(K::vignette);
}

double dismissSeconds(const SettingsStore& store) {
    return store.real(K::dismiss);
}

bool showOnWake(const SettingsStore& store) {
    return store.flag(K::showOnWake);
}

QString source(const SettingsStore& store) {
    return store.get(K::source);
}

QString frequency(const SettingsStore& store) {
    return store.get(K::frequency);
}

QString bgImage(const SettingsStore& store) {
    return store.get(K::bgImage);
}

QStringList customBGs(const SettingsStore& store) {
    return store.get(K::customBGs);
}

FontDesign fontDesign(const SettingsStore& store) {
    return fontDesignNamed(store.get(K::font));
}

} // namespace Prefs

} // namespace morrowleaf
