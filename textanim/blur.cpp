// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/curves.h"
#include "textanim/motion.h"

namespace morrowleaf {

namespace {

constexpr double duration = 1.4; // seconds

LineEffects effectsAt(double seconds) {
    const double progress = easeOut(sinceStart(seconds) / duration);
    return {.opacity = progress,
            .blurRadius = between(26, 0, progress),
            .scale = between(1.06, 1, progress)};
}

} // namespace

// The line comes into focus while it shrinks a little to its size.
Motion blur() {
    return {effectsAt, duration};
}

} // namespace morrowleaf
