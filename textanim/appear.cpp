// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/curves.h"
#include "textanim/motion.h"

namespace morrowleaf {

namespace {

constexpr double duration = 0.3; // seconds

LineEffects effectsAt(double seconds) {
    return {.opacity = easeOut(sinceStart(seconds) / duration)};
}

} // namespace

// The line fades in and does nothing else, whatever its style.
Motion appear() {
    return {effectsAt, duration};
}

} // namespace morrowleaf
