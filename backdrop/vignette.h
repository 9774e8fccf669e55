// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

namespace morrowleaf {

inline constexpr double vignetteInner = 260;  // points from the centre: clear
inline constexpr double vignetteOuter = 1200; // points from the centre, and beyond: full
inline constexpr double lightVignette = 0.22; // of the strength, over a light mesh

} // namespace morrowleaf
