// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/curves.h"
#include "textanim/motion.h"

#include <algorithm>

namespace morrowleaf {

// The line springs up from below, over its place and back to it.
Motion rise() {
    constexpr double response = 0.9; // seconds
    constexpr double dampingFraction = 0.72;
    static const double settled = springSettledAfter(response, dampingFraction);
    const auto valuesAt = [](double seconds) {
        const double since = sinceStart(seconds);
        const double progress = since >= settled ? 1 : spring(since, response, dampingFraction);
        RevealValues values;
        values.opacity = std::clamp(progress, 0.0, 1.0);
        values.offset = between(46, 0, progress);
        return values;
    };
    return {valuesAt, settled};
}

} // namespace morrowleaf
