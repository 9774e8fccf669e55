// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/overlaywindow.h"
#include "platform/screens.h"
#include "platform/trayhost.h"

#include <memory>

namespace morrowleaf {

// The parts of a platform on an X server. Main thread; they need an application object of
// Qt's xcb plugin.

std::unique_ptr<MainScreen> makeX11MainScreen();

std::unique_ptr<DesktopPicture> makeX11Picture();

// Windows outside the window manager's control or, with `managed`, full-screen windows
// under it. On Xwayland only managed windows can be above everything.
std::unique_ptr<OverlayMaker> makeX11Overlays(bool managed);

// Present while a client owns the server's system tray selection.
std::unique_ptr<TrayHost> makeX11Tray();

} // namespace morrowleaf
