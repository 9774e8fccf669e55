// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <functional>
#include <limits>

namespace morrowleaf {

// How a line stands at an instant; equal values look alike. The effects apply
// in this order: opacity, blur, scale about the centre, offset. The defaults are
// those of a line at rest.
struct RevealValues {
    double opacity = 1;    // 0...1
    double blurRadius = 0; // standard deviation, points
    double scale = 1;
    double offset = 0; // points downwards, negative above the resting place
    double traced = 1; // handwriting: share of the whole outline that is drawn as a stroke
    double ink = 1;    // handwriting: opacity of the filled letters
    qint64 typed = std::numeric_limits<qint64>::max(); // characters; a large number is all

    bool operator==(const RevealValues&) const = default;
};

// The way of a line from nothing to its rest. Seconds count from the end of the
// line's delay.
struct Motion {
    // Before 0, and for NaN, the values are those at 0; from `duration` on the
    // line rests. To a typed line seconds that are not finite are a fatal error.
    std::function<RevealValues(double seconds)> valuesAt;
    double duration = 0;
};

// One for each style, defined in the file of its name.
Motion fade();
Motion rise();
Motion blur();
Motion typewriter(qint64 characters);
Motion handwriting();

// Seconds since the start: 0 before it and for NaN.
inline double sinceStart(double seconds) {
    return seconds > 0 ? seconds : 0;
}

// The value on the way from `before` to `after`.
inline double between(double before, double after, double progress) {
    return before + (after - before) * progress;
}

} // namespace morrowleaf
