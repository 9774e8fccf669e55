// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/sessionevents.h"
#include "platform/singleinstance.h"
#include "platform/trayhost.h"

#include <memory>

namespace morrowleaf {

// The parts of a desktop that combine D-Bus, X11 and the kernel. Main thread.

// Sleep and session changes come from the login manager, locking also from the screen
// savers, monitors from Qt and the X server, and requests to quit from UNIX signals.
std::unique_ptr<SessionEvents> makeDesktopSession();

// A tray is present if a status notifier host is on the session bus or, with `x11`, a
// system tray is on the X server.
std::unique_ptr<TrayHost> makeDesktopTray(bool x11);

// Uses a name on the session bus or, without a bus, a socket in the user's runtime
// folder.
std::unique_ptr<SingleInstance> makeDesktopInstance();

} // namespace morrowleaf
