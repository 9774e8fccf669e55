// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/systembackdrop.h"

#include "backdrop/glass.h"

namespace morrowleaf {

SystemBackdrop systemBackdropFor(const BackdropState& state) {
    const double transparency = clampToUnit(state.transparency);
    const double opacity = glassOpacity(transparency);
    if (!isDrawnBySystem(state.desktop) || opacity <= 0) {
        return {};
    }
    SystemBackdrop backdrop{
        .kind = SystemBackdrop::Kind::Blur, .tint = state.palette.colors[4], .opacity = opacity};
    backdrop.tint.setAlphaF(static_cast<float>(glassTint(transparency)));
    if (state.liquidGlass && glassAvailable(state.desktop)) {
        backdrop.kind = transparency > clearFrom ? SystemBackdrop::Kind::ClearGlass
                                                 : SystemBackdrop::Kind::Glass;
    }
    return backdrop;
}

} // namespace morrowleaf
