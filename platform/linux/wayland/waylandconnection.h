// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <wayland-client.h>

extern "C" {
// The generated C uses this keyword as the name of a parameter.
#if defined(__clang__)
#pragma clang diagnostic ignored "-Wkeyword-macro"
#endif
#define namespace ns_
#include "wlr-layer-shell-unstable-v1.h"
#undef namespace
#include "kde-blur.h"
#include "wlr-screencopy-unstable-v1.h"
}

class QScreen;
class QWindow;

namespace morrowleaf::wayland {

struct Session {
    bool isReachable = false;   // a compositor is reachable
    bool hasLayerShell = false; // the compositor can make a window an overlay
};

// Connects to the session's compositor and disconnects again. Needs no application
// object.
Session probeSession();

// The globals of a compositor that this program uses; null if the compositor lacks them.
struct Globals {
    zwlr_layer_shell_v1* layerShell = nullptr;
    zwlr_screencopy_manager_v1* screencopy = nullptr;
    org_kde_kwin_blur_manager* blur = nullptr;
    wl_shm* shm = nullptr;
};

// Blocks for one round trip. The objects belong to `queue`, or to the default
// queue of `display` if that is null.
Globals bindGlobals(wl_display* display, wl_event_queue* queue);

// The native objects of Qt's objects; null if there are none.
wl_display* display();
wl_surface* surfaceOf(QWindow& window);
wl_output* outputOf(QScreen& screen);

// Makes Qt send key events to `window`. Qt activates windows of the xdg shell
// only; a surface with another role never becomes active by itself.
void takeFocus(QWindow& window);

} // namespace morrowleaf::wayland
