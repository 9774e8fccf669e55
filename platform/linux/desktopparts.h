// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/sessionevents.h"
#include "platform/singleinstance.h"
#include "platform/trayhost.h"

#include <memory>

namespace morrowleaf {

// The parts of a desktop that D-Bus, X11 and the kernel serve together.

// Sleep and sessions from the login manager, locking from the screen savers
// too, monitors from Qt and the X server, the end from UNIX signals.
std::unique_ptr<SessionEvents> makeDesktopSession();

// Present where a status notifier host is on the session bus or, with `x11`, a
// system tray is on the X server.
std::unique_ptr<TrayHost> makeDesktopTray(bool x11);

// By a name on the session bus or, without a bus, by a socket in the user's
// runtime folder.
std::unique_ptr<SingleInstance> makeDesktopInstance();

} // namespace morrowleaf
