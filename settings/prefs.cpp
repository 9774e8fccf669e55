// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settings/prefs.h"

#include "settings/settingskeys.h"
#include "settings/settingsstore.h"

namespace morrowleaf {

FontDesign fontDesignNamed(const QString& name) {
    if (name == QLatin1StringView("sans")) {
        return FontDesign::Default;
    }
    if (name == QLatin1StringView("rounded")) {
        return FontDesign::Rounded;
    }
    if (name == QLatin1StringView("mono")) {
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
    return store.text(K::source).value_or(QString());
}

QString frequency(const SettingsStore& store) {
    return store.text(K::frequency).value_or(QStringLiteral("24h"));
}

QString bgImage(const SettingsStore& store) {
    return store.text(K::bgImage).value_or(QString());
}

QStringList customBGs(const SettingsStore& store) {
    return store.textList(K::customBGs).value_or(QStringList());
}

FontDesign fontDesign(const SettingsStore& store) {
    return fontDesignNamed(store.text(K::font).value_or(QString()));
}

} // namespace Prefs

} // namespace morrowleaf
