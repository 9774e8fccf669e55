#pragma once

#include "look/animationkinds.h"

#include <QtGlobal>

namespace morrowleaf {

// How a line stands at an instant. The effects apply in this order: opacity,
// blur, scale about the centre, offset.
struct RevealValues {
    double opacity = 1;    // 0...1
    double blurRadius = 0; // standard deviation, points
    double scale = 1;
    double offset = 0; // points downwards, negative above the resting place
    double traced = 1; // share of the whole outline that is drawn as a stroke
    double ink = 1;    // opacity of the filled letters

    bool operator==(const RevealValues&) const = default;
};

// `sinceStart` in seconds, counted from the end of the line's delay; the values
// before it (also for no number) are those at 0, those after
// `revealDuration` stay. The typewriter shows its letters by `typedCharacters`.
RevealValues revealValues(TextAnim style, double sinceStart);

// Seconds from the end of the delay to the resting state; for the typewriter
// use `typingDuration`.
double revealDuration(TextAnim style);

inline constexpr double charsPerSecond = 26;

// Characters of a line of `length` that stand after the delay; a time that is
// not finite or beyond 64-bit counting is a fatal error.
qint64 typedCharacters(double sinceStart, qint64 length);
// The first instant at which the whole line stands.
double typingDuration(qint64 length);

} // namespace morrowleaf
