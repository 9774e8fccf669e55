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

// The appearance as the settings hold it at one instant, unchecked. The
// initial values stand where a key has no value, not even a registered one.
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

// The factor k on every scaled size: the settings' own where it is one. No
// positive number counts as 1, and none leaves 0.1...16.
double usableSizeScale(double sizeScale);

// The photo's palette while a photo is readable, else that of the settings.
const Palette& viewPalette(const ViewSettings& settings, bool photoReadable, const Moment& moment);

// The backdrop that the settings call for; photo pixels and what lies behind
// the window are left to the caller.
BackdropState backdropFor(const ViewSettings& settings, const Palette& palette, bool photoReadable);

} // namespace morrowleaf
