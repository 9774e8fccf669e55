// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/wayland/waylandprobe.h"

#include "platform/linux/wayland/waylandglobals.h"

namespace morrowleaf {

WaylandSession probeWayland() {
    wl_display* display = wl_display_connect(nullptr);
    if (display == nullptr) {
        return {};
    }
    const WaylandSession session{
        .reachable = true, .hasLayerShell = bindGlobals(display, nullptr).layerShell != nullptr};
    wl_display_disconnect(display);
    return session;
}

} // namespace morrowleaf
