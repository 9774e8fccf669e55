// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settings/settingskeys.h"

#include "settings/settingsstore.h"

namespace morrowleaf {

QJsonObject appDefaults() {
    return {
        {K::palette, -1},       {K::font, "fraunces"}, {K::textScale, 1.0},
        {K::grain, true},       {K::vignette, 0.55},   {K::transparency, 0.0},
        {K::liquidGlass, true}, {K::textAnim, "fade"}, {K::screenAnim, "drift"},
        {K::dismiss, 15.0},     {K::showOnWake, true}, {K::source, ""},
        {K::frequency, "24h"},  {K::bgImage, ""},
    };
}

void registerAppDefaults(SettingsStore& store) {
    store.registerDefaults(appDefaults());
}

} // namespace morrowleaf
