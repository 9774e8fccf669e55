// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "look/animationkinds.h"

#include <QtGlobal>

namespace morrowleaf {

// Seconds from the appearance of the view to the start of the line `index`,
// counted from 0.
inline double lineDelay(TextAnim kind, qint64 index) {
    const auto i = static_cast<double>(index);
    return kind == TextAnim::Handwrite ? 1.05 * i + 0.4 : 0.16 * i + 0.55;
}

// Seconds from the appearance until a quotation of that many lines counts as
// revealed: when a further line would start, and half a second later for handwriting.
inline double revealDone(TextAnim kind, qsizetype lines) {
    const double afterLast = lineDelay(kind, lines);
    return kind == TextAnim::Handwrite ? afterLast + 0.5 : afterLast;
}

} // namespace morrowleaf
