// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <cstddef>
#include <span>

namespace morrowleaf {

// The dither repeats after this many pixels in both directions.
inline constexpr std::size_t ditherSize = 32;

// The thresholds of the pixels in row `y` of the device, 0...63: pixel x takes
// the one at x modulo ditherSize, where x and y count as unsigned. Add it, in
// 64ths of a level, to what is rounded down to whole levels, and a slow slope
// shows no steps. In the whole pattern each threshold is equally frequent, and
// neighbours are as different as possible, so that no texture shows. It is made
// at the first call by void and cluster (Ulichney 1993), the same on every run;
// any thread may call.
using DitherRow = std::span<const quint8, ditherSize>;
DitherRow ditherRow(int y);

} // namespace morrowleaf
