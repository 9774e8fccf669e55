// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

namespace morrowleaf {

// Timing curves: elapsed fraction in, progress out, both clamped to 0...1.
// They are the cubic Béziers (0, 0, 0.58, 1), (0.42, 0, 1, 1) and (0.42, 0, 0.58, 1).
double easeOut(double fraction);
double easeIn(double fraction);
double easeInEaseOut(double fraction);

// Position at `seconds` of a unit mass on a spring of angular frequency
// 2π / response and the given damping ratio, from rest at 0 towards 1. It
// overshoots when the ratio is below 1; 0 before the start.
double spring(double seconds, double response, double dampingFraction);

// Seconds after which a spring stays within `tolerance` of 1.
double springSettledAfter(double response, double dampingFraction, double tolerance = 0.0005);

} // namespace morrowleaf
