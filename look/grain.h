// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <array>

namespace morrowleaf {

inline constexpr int grainSize = 160; // points, and pixels at a device pixel ratio of 1
inline constexpr double grainOpacity = 0.045;

// Four bytes a pixel (red, green, blue, 0xFF), row by row.
using GrainBytes = std::array<quint8, size_t{grainSize} * grainSize * 4>;

// The film grain: the same greyscale noise on every run, from a 64-bit xorshift
// generator. It is made at the first call. May be called on any thread.
const GrainBytes& grain();

} // namespace morrowleaf
