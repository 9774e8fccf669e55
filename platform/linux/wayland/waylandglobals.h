// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/wayland/waylandprotocols.h"

namespace morrowleaf {

// What a compositor offers of the protocols used here; null where it does not.
struct WaylandGlobals {
    zwlr_layer_shell_v1* layerShell = nullptr;
    zwlr_screencopy_manager_v1* screencopy = nullptr;
    org_kde_kwin_blur_manager* blur = nullptr;
    wl_shm* shm = nullptr;
};

// Asks once, in a round trip; the objects belong to `queue`, or to the
// display's own where that is null.
WaylandGlobals bindGlobals(wl_display* display, wl_event_queue* queue);

} // namespace morrowleaf
