// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/wayland/waylandglobals.h"
#include "platform/overlaywindow.h"

#include <memory>

namespace morrowleaf {

// Overlays as layer surfaces above everything, with the keyboard.
std::unique_ptr<OverlayMaker> makeLayerOverlays(const WaylandGlobals& globals);

} // namespace morrowleaf
