// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

namespace morrowleaf {

// Whether the session's compositor can be reached, and whether it lets a
// window become an overlay. Needs no application object.
struct WaylandSession {
    bool reachable = false;
    bool hasLayerShell = false;
};
WaylandSession probeWayland();

} // namespace morrowleaf
