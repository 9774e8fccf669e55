// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/backdropstate.h"
#include "base/moment.h"
#include "look/palettes.h"
#include "settings/settingstable.h"

#include <QString>

namespace morrowleaf {

class SettingsStore;

// The appearance as the settings hold it at one instant, not validated. The
// initial values apply where a key has no value, not even a registered default.
struct ViewSettings {
    qint64 paletteIndex = K::palette.initial;
    QString fontName = K::font.fallback;
    double sizeScale = K::textScale.initial;
    QString textAnimRaw = K::textAnim.fallback;
    QString bgImagePath = K::bgImage.fallback;

    // The backdrop's own.
    bool grainOn = K::grain.initial;
    double vignette = K::vignette.initial;
    double transparency = K::transparency.initial;
    bool liquidGlass = K::liquidGlass.initial;
    QString screenAnimRaw = K::screenAnim.fallback;

    bool operator==(const ViewSettings&) const = default;
};

ViewSettings readViewSettings(const SettingsStore& store);

// The factor k on every scaled size. Zero, negative, infinite and NaN give 1; the
// result is clamped to [0.1, 16].
double usableSizeScale(double sizeScale);

// The palette for a photo while one is readable, else that of the settings.
const Palette& viewPalette(const ViewSettings& settings, bool photoReadable, const Moment& moment);

// The backdrop that follows from the settings. The caller adds the pixels of the
// photo and what lies behind the window.
BackdropState backdropFor(const ViewSettings& settings, const Palette& palette, bool photoReadable);

} // namespace morrowleaf
