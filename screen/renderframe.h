// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/backdrop.h"
#include "screen/quoteview.h"

#include <QImage>

namespace morrowleaf {

// One frame of the quote screen without a window: `seconds` since the view
// appeared, `since2001` the wall clock in seconds since 2001-01-01 UTC. The
// image covers the view at its device pixel ratio.
QImage renderFrame(BackdropPainter& painter, const BackdropState& backdrop, const QuoteView& view,
                   double seconds, double since2001);

// Seconds from 1970 to 2001, both at the first of January, UTC.
inline constexpr double unixToReference = 978307200;

} // namespace morrowleaf
