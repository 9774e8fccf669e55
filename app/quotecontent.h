// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/appdelegate.h"
#include "screen/quotescreen.h"

namespace morrowleaf {

// The content of a quote window: a fresh quote screen for the main screen,
// with the appearance editor where hooks are given.
QuoteContent makeQuoteContent(const ScreenSurroundings& surroundings, Platform& platform,
                              const EditingHooks* editing);

} // namespace morrowleaf
