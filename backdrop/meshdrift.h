// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>

namespace morrowleaf {

struct MeshPoint {
    float x = 0; // unit coordinates, (0, 0) top left, (1, 1) bottom right
    float y = 0;
};
using MeshPoints = std::array<MeshPoint, 9>; // row by row

// The nine points of the backdrop's mesh at phase `t` (seconds since 2001 of
// wall-clock time times the animation's speed; of the order of 1e8).
MeshPoints meshDrift(double t, double amplitude = 0.16);

} // namespace morrowleaf
