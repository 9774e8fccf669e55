// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/desktopwishes.h"
#include "platform/overlaywindow.h"
#include "platform/sessionevents.h"
#include "platform/singleinstance.h"
#include "platform/trayhost.h"

#include <memory>

namespace morrowleaf {

class BusLink;

// The parts of a desktop that combine D-Bus, X11 and the kernel. All share one connection
// to the session bus, which is opened when the instance listens for requests: once the
// program has its name there, it has also subscribed to everything. Main thread.

// Sleep and session changes come from the login manager, locking also from the screen
// savers, monitors from Qt and the X server, and requests to quit from UNIX signals.
std::unique_ptr<SessionEvents> makeDesktopSession(std::shared_ptr<const BusLink> session);

// A tray is present if a status notifier host is on the session bus or, with `x11`, a
// system tray is on the X server.
std::unique_ptr<TrayHost> makeDesktopTray(std::shared_ptr<const BusLink> session, bool x11);

// Those of `overlays`, for which GNOME's shell closes its overview. Every request is taken
// for one of the user. Connect to `requests` later than this, whose windows follow from them.
std::unique_ptr<OverlayMaker> makeOverlaysOverShell(std::unique_ptr<OverlayMaker> overlays,
                                                    std::shared_ptr<const BusLink> session,
                                                    const RequestListener& requests);

// What the user has told the desktop's portal or, with `x11`, whoever has the settings of
// the X server. A wish counts if either knows of it.
std::unique_ptr<DesktopWishes> makeDesktopWishes(std::shared_ptr<const BusLink> session, bool x11);

// Uses a lock in the user's runtime folder. Later launches reach the instance through a
// socket beside it or by its name on the session bus.
std::unique_ptr<SingleInstance> makeDesktopInstance();

// What arrives in both ways. Opens `session`.
std::unique_ptr<RequestListener> makeDesktopRequests(std::shared_ptr<BusLink> session);

} // namespace morrowleaf
