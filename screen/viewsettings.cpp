// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/viewsettings.h"

#include "settings/settingskeys.h"
#include "settings/settingsstore.h"

#include <algorithm>
#include <cmath>

namespace morrowleaf {

ViewSettings readViewSettings(const SettingsStore& store) {
    ViewSettings settings;
    const auto present = [&](QLatin1StringView key) { return store.value(key).has_value(); };
    const auto text = [&](QLatin1StringView key, QString& into) {
        into = store.text(key).value_or(into);
    };
    const auto real = [&](QLatin1StringView key, double& into) {
        into = present(key) ? store.real(key) : into;
    };
    const auto flag = [&](QLatin1StringView key, bool& into) {
        into = present(key) ? store.flag(key) : into;
    };
    if (present(K::palette)) {
        settings.paletteIndex = store.integer(K::palette);
    }
    text(K::font, settings.fontName);
    real(K::textScale, settings.sizeScale);
    text(K::textAnim, settings.textAnimRaw);
    text(K::bgImage, settings.bgImagePath);
    flag(K::grain, settings.grainOn);
    real(K::vignette, settings.vignette);
    real(K::transparency, settings.transparency);
    flag(K::liquidGlass, settings.liquidGlass);
    text(K::screenAnim, settings.screenAnimRaw);
    return settings;
}

double usableSizeScale(double sizeScale) {
    if (!std::isfinite(sizeScale) || sizeScale <= 0) {
        return 1;
    }
    return std::clamp(sizeScale, 0.1, 16.0);
}

const Palette& viewPalette(const ViewSettings& settings, bool photoReadable, const Moment& moment) {
    return photoReadable ? Palette::photo() : Palette::current(settings.paletteIndex, moment);
}

BackdropState backdropFor(const ViewSettings& settings, const Palette& palette,
                          bool photoReadable) {
    BackdropState state;
    state.palette = palette;
    state.grainOn = settings.grainOn;
    state.vignette = settings.vignette;
    state.transparency = settings.transparency;
    state.liquidGlass = settings.liquidGlass;
    state.screenAnim = storedScreenAnim(settings.screenAnimRaw);
    state.hasPhoto = photoReadable;
    return state;
}

} // namespace morrowleaf
