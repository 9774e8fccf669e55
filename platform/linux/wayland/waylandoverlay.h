// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/overlaywindow.h"

#include <memory>

namespace morrowleaf {

// Full-screen windows of the compositor's own kind; what lies behind such a
// window is black, so that they are opaque.
std::unique_ptr<OverlayMaker> makeWaylandOverlays();

} // namespace morrowleaf
