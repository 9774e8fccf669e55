// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/curves.h"
#include "textanim/motion.h"

namespace morrowleaf {

// The line comes into focus, a little too large at first.
Motion blur() {
    constexpr double duration = 1.4;
    const auto valuesAt = [](double seconds) {
        const double progress = easeOut(sinceStart(seconds) / duration);
        RevealValues values;
        values.opacity = progress;
        values.blurRadius = between(26, 0, progress);
        values.scale = between(1.06, 1, progress);
        return values;
    };
    return {valuesAt, duration};
}

} // namespace morrowleaf
