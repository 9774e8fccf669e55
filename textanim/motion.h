// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "textanim/linepainter.h"

#include <memory>

namespace morrowleaf {

// The effects on a line of type, applied in this order: opacity, blur, scale
// about the centre, offset. The defaults are those of a line at rest.
struct LineEffects {
    double opacity = 1;    // 0...1
    double blurRadius = 0; // standard deviation, points
    double scale = 1;
    double offset = 0; // points downwards, negative above the resting place

    bool operator==(const LineEffects&) const = default;
};

// The way of a whole line from invisible to its rest, as effects over time.
// Seconds count from the end of the line's delay.
struct Motion {
    // At and after `duration` seconds these are the effects of a line at rest;
    // before 0, and for NaN, those at 0.
    LineEffects (*effectsAt)(double seconds);
    double duration;
};

// Each is defined in the file of its name.
Motion fade();
Motion rise();
Motion blur();

// Draws a whole line with the effects of a motion.
std::unique_ptr<LinePainter> motionPainter(TextOutline text, const Motion& motion);

// Seconds since the start: 0 before it and for NaN.
inline double sinceStart(double seconds) {
    return seconds > 0 ? seconds : 0;
}

// The value at `progress` (0...1) on the way from `before` to `after`.
inline double between(double before, double after, double progress) {
    return before + (after - before) * progress;
}

} // namespace morrowleaf
