// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/entrances.h"

#include "base/curves.h"
#include "textanim/stagger.h"

#include <algorithm>

namespace morrowleaf {

double Entrance::progress(double seconds) const {
    return easeOut((seconds - delay) / duration);
}

ClosingEntrances closingEntrances(TextAnim kind, qsizetype lines) {
    const double revealed = revealDone(kind, lines);
    return {{revealed + 0.1, 0.9}, {revealed + 0.25, 1.0}};
}

namespace mark {

namespace {

double position(double seconds) {
    return seconds >= end() ? 1 : spring(seconds - delay, response, dampingFraction);
}

} // namespace

double opacity(double seconds) {
    return std::clamp(position(seconds), 0.0, 1.0);
}

double scale(double seconds) {
    return 0.7 + 0.3 * position(seconds);
}

double end() {
    static const double settled = delay + springSettledAfter(response, dampingFraction);
    return settled;
}

} // namespace mark

} // namespace morrowleaf
