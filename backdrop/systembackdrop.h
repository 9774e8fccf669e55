// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/backdropstate.h"
#include "platform/overlaywindow.h"

namespace morrowleaf {

// What the system has to draw behind the ground of `state`; nothing for a desktop view
// that the system does not draw.
SystemBackdrop systemBackdropFor(const BackdropState& state);

} // namespace morrowleaf
