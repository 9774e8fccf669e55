// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/overlaywindow.h"
#include "platform/screens.h"

#include <memory>

namespace morrowleaf {

// The parts of a platform on a Wayland compositor. They need an application
// object of Qt's wayland plugin.

// Layer surfaces above everything, with the keyboard. For a compositor that
// has zwlr_layer_shell_v1, see wayland::probeSession().
std::unique_ptr<OverlayMaker> makeLayerOverlays();

// Full-screen windows of the xdg shell. Compositors draw black behind such
// windows, so they are opaque.
std::unique_ptr<OverlayMaker> makeWaylandOverlays();

// Pictures by zwlr_screencopy_manager_v1; null ones where it is missing.
std::unique_ptr<DesktopPicture> makeScreencopy();

} // namespace morrowleaf
