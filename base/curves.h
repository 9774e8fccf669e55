// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

namespace morrowleaf {

// Timing curves: the progress at an elapsed fraction, both clamped to 0...1; NaN
// gives 0. They are the cubic Bézier curves with the inner control points
// (0, 0) (0.58, 1), (0.42, 0) (1, 1) and (0.42, 0) (0.58, 1), solved by bisection
// to full precision.
double easeOut(double fraction);
double easeIn(double fraction);
double easeInEaseOut(double fraction);

// The position at `seconds` of a unit mass on a spring, from rest at 0 towards 1.
// `response` is the period of the undamped spring in seconds (its angular
// frequency is 2π / response) and `dampingFraction` the damping ratio: below 1
// the spring overshoots. Negative `seconds` and NaN give 0, infinity gives 1.
double spring(double seconds, double response, double dampingFraction);

// The seconds after which a spring stays within `tolerance` of 1.
double springSettledAfter(double response, double dampingFraction, double tolerance = 0.0005);

} // namespace morrowleaf
