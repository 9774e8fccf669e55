// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/overlaywindow.h"

#include <memory>

namespace morrowleaf {

// Windows that no window manager touches, or, `managed`, full-screen ones
// that it does (on Xwayland, where others are not shown above everything).
std::unique_ptr<OverlayMaker> makeX11Overlays(bool managed);

} // namespace morrowleaf
