// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/curves.h"
#include "textanim/motion.h"

namespace morrowleaf {

// The line fades in and sharpens while it rises a little.
Motion fade() {
    constexpr double duration = 1.15;
    const auto valuesAt = [](double seconds) {
        const double progress = easeOut(sinceStart(seconds) / duration);
        RevealValues values;
        values.opacity = progress;
        values.blurRadius = between(9, 0, progress);
        values.offset = between(22, 0, progress);
        return values;
    };
    return {valuesAt, duration};
}

} // namespace morrowleaf
