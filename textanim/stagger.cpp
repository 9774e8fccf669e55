// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/stagger.h"

namespace morrowleaf {

double lineDelay(TextAnim kind, qint64 index) {
    const auto i = static_cast<double>(index);
    return kind == TextAnim::Handwrite ? 1.05 * i + 0.4 : 0.16 * i + 0.55;
}

double revealDone(TextAnim kind, qsizetype lines) {
    const double afterLast = lineDelay(kind, lines);
    return kind == TextAnim::Handwrite ? afterLast + 0.5 : afterLast;
}

} // namespace morrowleaf
