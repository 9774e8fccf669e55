// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "look/animationkinds.h"

namespace morrowleaf {

// Something that comes in by ease-out, once, counted from the appearance of
// the view. All times are seconds.
struct Entrance {
    double delay = 0;
    double duration = 1;

    double progress(double seconds) const; // 0...1
    double end() const { return delay + duration; }
};

inline constexpr Entrance headerEntrance{0.9, 1.2};
inline constexpr Entrance hintEntrance{2.6, 1.4};

// Rule and author wait for the lines as they were when the view appeared.
struct ClosingEntrances {
    Entrance rule;
    Entrance author;
};
ClosingEntrances closingEntrances(TextAnim kind, qsizetype lines);

// The opening quotation mark springs in: opacity 0...1, scale from 0.7 over
// its full size and back to it.
namespace mark {
inline constexpr double delay = 0.35;
inline constexpr double response = 1.1;
inline constexpr double dampingFraction = 0.75;
double opacity(double seconds);
double scale(double seconds);
double end(); // from here on it stands still
} // namespace mark

// The appearance editor slides in from the right edge.
inline constexpr Entrance inspectorEntrance{0, 0.28};

// A photo that let itself be waited for longer than this fades in.
inline constexpr double photoPatience = 0.1;
inline constexpr double photoFade = 0.3;

} // namespace morrowleaf
