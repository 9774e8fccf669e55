// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/curves.h"
#include "textanim/motion.h"

namespace morrowleaf {

namespace {

constexpr double duration = 1.15; // seconds

LineEffects effectsAt(double seconds) {
    const double progress = easeOut(sinceStart(seconds) / duration);
    return {.opacity = progress,
            .blurRadius = between(9, 0, progress),
            .offset = between(22, 0, progress)};
}

} // namespace

// The line fades in and sharpens while it rises a little.
Motion fade() {
    return {effectsAt, duration};
}

} // namespace morrowleaf
