// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/backdropstate.h"

namespace morrowleaf {

// The vignette darkens the ground by its strength times a share that grows
// evenly between two distances from the backdrop's centre, in points.
inline constexpr double vignetteInner = 260;  // the share is 0 up to here
inline constexpr double vignetteOuter = 1200; // and 1 from here on
// Over a light mesh only this part of the strength is used.
inline constexpr double lightVignette = 0.22;

// The vignette's strength in this state, 0...1.
inline double vignetteStrength(const BackdropState& state) {
    const bool overLightMesh = state.palette.light && !state.hasPhoto;
    return clampToUnit(state.vignette * (overLightMesh ? lightVignette : 1));
}

} // namespace morrowleaf
