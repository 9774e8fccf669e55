#pragma once

#include "screen/backdrop.h"

namespace morrowleaf {

inline constexpr double leastTransparency = 0.01; // no glass layer up to here

// How much each layer gives to the finished pixel, 0...1, from the front.
struct Layers {
    double ground = 1;
    double tint = 0;   // of the palette's centre colour
    double behind = 0; // of what lies behind the window
};

// `canSee`: the pixels behind are at hand. A window that nothing shines
// through has an opaque ground.
Layers layersOf(const BackdropState& state, bool canSee);

// The vignette's strength in this state, 0...1; a light mesh takes a little.
double vignetteStrength(const BackdropState& state);

// Clamped to 0...1; what is not a number is 0.
double unitOf(double value);

} // namespace morrowleaf
