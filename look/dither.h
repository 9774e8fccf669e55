// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <cstddef>
#include <span>

namespace morrowleaf {

// The dither repeats after this many pixels in both directions.
inline constexpr std::size_t ditherSize = 32;

// The thresholds (0...63) of the pixels in row `y` of the device: pixel x uses
// the one at x modulo ditherSize, with x and y converted to unsigned. Adding a
// threshold, in 64ths of a level, to a value that is then truncated to whole
// levels hides the steps of a slow gradient. In the whole pattern each threshold
// is equally frequent, and neighbours differ as much as possible, so that no
// texture shows. The pattern is computed at the first call by void and cluster
// (Ulichney 1993) and is the same on every run. May be called on any thread.
using DitherRow = std::span<const quint8, ditherSize>;
DitherRow ditherRow(int y);

} // namespace morrowleaf
