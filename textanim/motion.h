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

// The entrance of a whole line, as effects over time. Seconds count from the end
// of the line's delay.
struct Motion {
    // From `duration` seconds on, these are the effects of a line at rest; for
    // negative seconds and NaN they are those at 0.
    LineEffects (*effectsAt)(double seconds);
    double duration;
};

// Each is defined in the file of its name.
Motion fade();
Motion rise();
Motion blur();
Motion appear();

// Makes a painter that draws a whole line with the effects of a motion.
std::unique_ptr<LinePainter> motionPainter(LateOutline text, const Motion& motion);

// `seconds`, but 0 for negative values and NaN.
inline double sinceStart(double seconds) {
    return seconds > 0 ? seconds : 0;
}

// The linear interpolation from `before` to `after`; `progress` is 0...1, or
// above 1 for an overshoot.
inline double between(double before, double after, double progress) {
    return before + (after - before) * progress;
}

} // namespace morrowleaf
