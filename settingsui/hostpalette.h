// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/desktopwishes.h"

#include <QPalette>

namespace morrowleaf {

// The colours of ordinary windows for a preference; without a preference, those of the
// style. A valid `accent` replaces the colour of selections, links and switches.
QPalette hostPalette(ColorPreference preference, const QColor& accent = {});

// Black on white, or the reverse for ColorPreference::Dark; without a preference, as the
// style has it.
QPalette highContrastPalette(ColorPreference preference);

// Whether texts are black on white or the reverse, so that nothing should be faint.
bool hasFullContrast(const QPalette& palette);

// Keeps the application's colours in step with the desktop's wishes during the life of
// `wishes`.
void followColors(DesktopWishes& wishes);

} // namespace morrowleaf
