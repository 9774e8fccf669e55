// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/colorscheme.h"

#include <QPalette>

namespace morrowleaf {

// The colours of ordinary windows for a preference; without a preference, those of the
// style.
QPalette hostPalette(ColorPreference preference);

// Keeps the application's colours in step with the desktop's preference during the life
// of `scheme`.
void followColorScheme(ColorScheme& scheme);

} // namespace morrowleaf
