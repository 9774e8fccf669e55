// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/backdropstate.h"

namespace morrowleaf {

inline constexpr double leastTransparency = 0.01; // no glass layer up to here

// How much each layer gives to the finished pixel, 0...1, from the front.
struct Layers {
    double ground = 1;
    double tint = 0;  // of the palette's centre colour
    double glass = 0; // of the blurred picture of what lies behind
    double sharp = 0; // of that picture as it is
    double rim = 0;   // of the light on the glass's edges
};

// `canSee`: the pixels behind are at hand; `hasGlass`: under glass, too. A window that nothing
// shines through has an opaque ground.
Layers layersOf(const BackdropState& state, bool canSee, bool hasGlass);

// The vignette's strength in this state, 0...1; a light mesh takes a little.
double vignetteStrength(const BackdropState& state);

// Clamped to 0...1; what is not a number is 0.
double unitOf(double value);

} // namespace morrowleaf
