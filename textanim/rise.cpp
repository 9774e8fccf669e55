// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/curves.h"
#include "textanim/motion.h"

#include <algorithm>

namespace morrowleaf {

namespace {

constexpr double response = 0.9; // seconds
constexpr double dampingFraction = 0.72;

double settledAfter() {
    static const double seconds = springSettledAfter(response, dampingFraction);
    return seconds;
}

LineEffects effectsAt(double seconds) {
    const double since = sinceStart(seconds);
    const double progress = since >= settledAfter() ? 1 : spring(since, response, dampingFraction);
    return {.opacity = std::clamp(progress, 0.0, 1.0), .offset = between(46, 0, progress)};
}

} // namespace

// The line springs up from below, overshoots its place and returns to it.
Motion rise() {
    return {effectsAt, settledAfter()};
}

} // namespace morrowleaf
