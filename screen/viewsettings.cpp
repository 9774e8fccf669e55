// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/viewsettings.h"

#include "settings/settingsstore.h"
#include "settings/settingstable.h"

#include <algorithm>
#include <cmath>

namespace morrowleaf {

ViewSettings readViewSettings(const SettingsStore& store, const Wishes& wishes) {
    return {
        .paletteIndex = store.get(K::palette),
        .fontName = store.get(K::font),
        .sizeScale = store.get(K::textScale),
        .textAnimRaw = store.get(K::textAnim),
        .bgImagePath = store.get(K::bgImage),
        .grainOn = store.get(K::grain),
        .vignette = store.get(K::vignette),
        .transparency = store.get(K::transparency),
        .liquidGlass = store.get(K::liquidGlass),
        .screenAnimRaw = store.get(K::screenAnim),
        .reducedMotion = wishes.reducedMotion,
        .highContrast = wishes.highContrast,
    };
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
    state.screenAnim =
        settings.reducedMotion ? ScreenAnim::Still : storedScreenAnim(settings.screenAnimRaw);
    state.hasPhoto = photoReadable;
    return state;
}

} // namespace morrowleaf
