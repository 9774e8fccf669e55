// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <wayland-client.h>

extern "C" {
// A parameter in the generated C has this name.
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
    bool isReachable = false;   // there is a compositor
    bool hasLayerShell = false; // it can make a window an overlay
};

// Connects to the session's compositor for a moment. Needs no application object.
Session probeSession();

// The globals that this program uses of those that a compositor offers; null
// where one is missing.
struct Globals {
    zwlr_layer_shell_v1* layerShell = nullptr;
    zwlr_screencopy_manager_v1* screencopy = nullptr;
    org_kde_kwin_blur_manager* blur = nullptr;
    wl_shm* shm = nullptr;
};

// Blocks for one round trip. The objects belong to `queue`, or to the default
// queue of `display` where that is null.
Globals bindGlobals(wl_display* display, wl_event_queue* queue);

// The native objects behind Qt's; null where there are none.
wl_display* display();
wl_surface* surfaceOf(QWindow& window);
wl_output* outputOf(QScreen& screen);

// Makes Qt send key events to `window`. Qt activates windows of the xdg shell
// only; a surface with another role never becomes active by itself.
void takeFocus(QWindow& window);

} // namespace morrowleaf::wayland
