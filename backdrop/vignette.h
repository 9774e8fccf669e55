// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/backdropstate.h"

namespace morrowleaf {

// The vignette darkens the ground by its strength times a factor that grows
// linearly from 0 to 1 between two distances from the backdrop's centre, in points.
inline constexpr double vignetteInner = 260;  // the factor is 0 up to here
inline constexpr double vignetteOuter = 1200; // and 1 from here on
// Over a light mesh the strength is multiplied by this.
inline constexpr double lightVignette = 0.22;

// The strength of the vignette in this state, 0...1.
inline double vignetteStrength(const BackdropState& state) {
    const bool overLightMesh = state.palette.light && !state.hasPhoto;
    return clampToUnit(state.vignette * (overLightMesh ? lightVignette : 1));
}

} // namespace morrowleaf
