// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

namespace morrowleaf {

// The durations of a showing, in seconds.

// A wake, an unlock or a session that becomes active is ignored for this long after the
// last showing began.
inline constexpr double throttleSeconds = 8.0;

// The window's fades.
inline constexpr double fadeInSeconds = 0.55;
inline constexpr double fadeOutSeconds = 0.45;

// A showing closes by itself after the seconds of K::dismiss (settings/settingstable.h),
// or after this time where the setting is shorter or NaN.
inline constexpr double shortestShowingSeconds = 5.0;

} // namespace morrowleaf
