// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <array>

namespace morrowleaf {

inline constexpr int grainSize = 160; // points, and pixels at scale 1
inline constexpr double grainOpacity = 0.045;

// R, G, B, 0xFF, row by row.
using GrainBytes = std::array<quint8, size_t{grainSize} * grainSize * 4>;

// The film grain: the same greyscale noise on every run, built on first use.
const GrainBytes& grain();

} // namespace morrowleaf
