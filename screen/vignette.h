#pragma once

#include <algorithm>

namespace morrowleaf {

inline constexpr double vignetteInner = 260;  // points from the centre: clear
inline constexpr double vignetteOuter = 1200; // points from the centre, and beyond: full
inline constexpr double lightVignette = 0.22; // of the strength, over a light mesh

// Opacity of the vignette's black at `radius` points from the centre.
inline double vignetteAt(double radius, double strength) {
    return strength *
           std::clamp((radius - vignetteInner) / (vignetteOuter - vignetteInner), 0.0, 1.0);
}

} // namespace morrowleaf
