// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/backdropstate.h"
#include "base/moment.h"
#include "look/palettes.h"
#include "platform/desktopwishes.h"
#include "settings/settingstable.h"

#include <QString>

namespace morrowleaf {

class SettingsStore;

// The appearance settings at one instant, not validated. The values here apply to
// keys that have neither a value nor a registered default.
struct ViewSettings {
    qint64 paletteIndex = K::palette.initial;
    QString fontName = K::font.fallback;
    double sizeScale = K::textScale.initial;
    QString textAnimRaw = K::textAnim.fallback;
    QString bgImagePath = K::bgImage.fallback;

    // The settings of the backdrop.
    bool grainOn = K::grain.initial;
    double vignette = K::vignette.initial;
    double transparency = K::transparency.initial;
    bool liquidGlass = K::liquidGlass.initial;
    QString screenAnimRaw = K::screenAnim.fallback;

    // The desktop's wishes, not settings.
    bool reducedMotion = false;
    bool highContrast = false;

    bool operator==(const ViewSettings&) const = default;
};

ViewSettings readViewSettings(const SettingsStore& store, const Wishes& wishes = {});

// The factor k on every scaled size. Zero, negative, infinite and NaN give 1; the
// result is clamped to [0.1, 16].
double usableSizeScale(double sizeScale);

// Palette::photo() if a photo is readable, otherwise the palette of the settings.
const Palette& viewPalette(const ViewSettings& settings, bool photoReadable, const Moment& moment);

// The state of the backdrop for these settings. The caller adds the pixels of the
// photo and what shows behind the window.
BackdropState backdropFor(const ViewSettings& settings, const Palette& palette, bool photoReadable);

} // namespace morrowleaf
