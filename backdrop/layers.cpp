// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/layers.h"

#include "backdrop/vignette.h"

#include <algorithm>

namespace morrowleaf {

double unitOf(double value) {
    return value > 0 ? std::min(value, 1.0) : 0;
}

double vignetteStrength(const BackdropState& state) {
    const bool faint = state.palette.light && !state.hasPhoto;
    return unitOf(state.vignette * (faint ? lightVignette : 1));
}

Layers layersOf(const BackdropState& state, bool canSee, bool hasGlass) {
    const Behind::Kind kind = state.behind.kind;
    const double t = unitOf(state.transparency);
    if (kind == Behind::Kind::Nothing || (kind == Behind::Kind::Captured && !canSee) || t <= 0) {
        return {};
    }
    const double glass = t > leastTransparency ? std::min((1 - t) * 4, 1.0) : 0;
    const double tint = (1 - t) * 0.5 + 0.06;
    Layers layers{.ground = 1 - t, .tint = t * glass * tint};
    if (canSee) {
        const double ready = hasGlass ? unitOf(state.behind.glassOpacity) : 0;
        layers.glass = t * glass * (1 - tint) * ready;
        layers.sharp = t * (1 - glass * tint) - layers.glass;
        layers.rim = state.liquidGlass ? t * glass * ready : 0;
    }
    return layers;
}

} // namespace morrowleaf
