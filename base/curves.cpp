// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/curves.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace morrowleaf {

namespace {

// One coordinate of a cubic Bézier curve from 0 to 1 with these inner control points.
double bezier(double first, double second, double t) {
    const double s = 1 - t;
    return 3 * s * s * t * first + 3 * s * t * t * second + t * t * t;
}

// The progress at an elapsed fraction, for the inner control points (x1, 0), (x2, y2).
double timing(double x1, double x2, double y2, double fraction) {
    if (!(fraction > 0)) {
        return 0;
    }
    if (fraction >= 1) {
        return 1;
    }
    // x increases with t, so bisection finds the parameter.
    double low = 0;
    double high = 1;
    for (int i = 0; i < 48; ++i) {
        const double middle = (low + high) / 2;
        (bezier(x1, x2, middle) < fraction ? low : high) = middle;
    }
    return std::clamp(bezier(0, y2, (low + high) / 2), 0.0, 1.0);
}

} // namespace

double easeOut(double fraction) {
    return timing(0, 0.58, 1, fraction);
}
double easeIn(double fraction) {
    return timing(0.42, 1, 1, fraction);
}
double easeInEaseOut(double fraction) {
    return timing(0.42, 0.58, 1, fraction);
}

double spring(double seconds, double response, double dampingFraction) {
    if (!(seconds > 0)) {
        return 0;
    }
    if (std::isinf(seconds)) {
        return 1;
    }
    const double omega = 2 * std::numbers::pi / response;
    const double zeta = dampingFraction;
    if (std::abs(zeta - 1) < 1e-6) {
        return 1 - std::exp(-omega * seconds) * (1 + omega * seconds);
    }
    if (zeta < 1) {
        const double damped = omega * std::sqrt(1 - zeta * zeta);
        return 1 - std::exp(-zeta * omega * seconds) *
                       (std::cos(damped * seconds) +
                        zeta * omega / damped * std::sin(damped * seconds));
    }
    const double root = std::sqrt(zeta * zeta - 1);
    const double slow = -omega * (zeta - root);
    const double fast = -omega * (zeta + root);
    return 1 + (fast * std::exp(slow * seconds) - slow * std::exp(fast * seconds)) / (slow - fast);
}

double springSettledAfter(double response, double dampingFraction, double tolerance) {
    const double omega = 2 * std::numbers::pi / response;
    const double zeta = dampingFraction;
    if (zeta < 1) {
        // Solved for the envelope of the oscillation, which may itself settle earlier.
        return std::log(1 / (tolerance * std::sqrt(1 - zeta * zeta))) / (zeta * omega);
    }
    // Without overshoot 1 is approached from below; found by bisection.
    double low = 0;
    double high = response;
    while (1 - spring(high, response, dampingFraction) > tolerance) {
        high *= 2;
    }
    for (int i = 0; i < 60; ++i) {
        const double middle = (low + high) / 2;
        (1 - spring(middle, response, dampingFraction) > tolerance ? low : high) = middle;
    }
    return high;
}

} // namespace morrowleaf
