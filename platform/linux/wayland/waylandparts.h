// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/overlaywindow.h"
#include "platform/screens.h"

#include <memory>

namespace morrowleaf {

// The parts of a platform on a Wayland compositor. Main thread; they need an application
// object of Qt's wayland plugin.

// Layer surfaces above everything, with the keyboard. Only for a compositor with
// zwlr_layer_shell_v1, see wayland::probeSession().
std::unique_ptr<OverlayMaker> makeLayerOverlays();

// Full-screen windows of the xdg shell. They are opaque, because compositors draw black
// behind such windows.
std::unique_ptr<OverlayMaker> makeWaylandOverlays();

// Captures by zwlr_screencopy_manager_v1; null pictures if the compositor lacks it.
std::unique_ptr<DesktopPicture> makeScreencopy();

} // namespace morrowleaf
