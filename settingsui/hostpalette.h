// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/colorscheme.h"

#include <QPalette>

namespace morrowleaf {

// The colours of ordinary windows for what the user prefers; without a
// preference, those of the style.
QPalette hostPalette(ColorPreference preference);

// Keeps the application's colours in line with the desktop's preference, as
// long as both live.
void followColorScheme(ColorScheme& scheme);

} // namespace morrowleaf
