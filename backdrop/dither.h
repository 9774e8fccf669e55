// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <array>

namespace morrowleaf {

inline constexpr int ditherSize = 32; // pixels, in both directions

// A threshold for every pixel of a tile, 0...63: each value equally often, and
// neighbours as unlike as can be, so that the pattern has no visible texture.
using DitherMask = std::array<quint8, ditherSize * ditherSize>;

// Built on first use by void and cluster (Ulichney 1993), the same on every run.
const DitherMask& ditherMask();

} // namespace morrowleaf
