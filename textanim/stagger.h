// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "look/animationkinds.h"

#include <QtGlobal>

namespace morrowleaf {

// Seconds from appearance to the start of the line with this index.
double lineDelay(TextAnim kind, qint64 index);

// Seconds from appearance until the whole quotation counts as revealed.
double revealDone(TextAnim kind, qsizetype lines);

} // namespace morrowleaf
