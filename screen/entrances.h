// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "look/animationkinds.h"

namespace morrowleaf {

// The entrance of one element, eased out. Times are in seconds since the view appeared.
struct Entrance {
    double delay = 0;
    double duration = 1;

    double progress(double seconds) const; // 0...1
    double end() const { return delay + duration; }
};

inline constexpr Entrance headerEntrance{0.9, 1.2};
inline constexpr Entrance hintEntrance{2.6, 1.4};

// The entrances of rule and author, which wait for the lines that the quotation
// had when the view appeared.
struct ClosingEntrances {
    Entrance rule;
    Entrance author;
};
ClosingEntrances closingEntrances(TextAnim kind, qsizetype lines);

// The opening quotation mark springs in: its opacity rises from 0 to 1, and its
// scale grows from 0.7, overshoots 1 and returns to it.
namespace mark {
inline constexpr double delay = 0.35;
inline constexpr double response = 1.1;
inline constexpr double dampingFraction = 0.75;
double opacity(double seconds);
double scale(double seconds);
double end(); // from here on the mark is at rest
} // namespace mark

// The appearance editor slides in from the right edge.
inline constexpr Entrance inspectorEntrance{0, 0.28};

// Replaces all of the above for users who want no motion: everything fades in, at once.
inline constexpr Entrance stillEntrance{0, 0.3};

// A photo or glass that takes longer than photoFadeThreshold seconds fades in over
// photoFade seconds.
inline constexpr double photoFadeThreshold = 0.1;
inline constexpr double photoFade = 0.3;

} // namespace morrowleaf
