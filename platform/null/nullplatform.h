// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/platform.h"

namespace morrowleaf {

// A platform that leaves the desktop alone: windows are plain ones on the
// primary screen, nothing ever happens to the session, and the login item is
// remembered in memory.
Platform makeNullPlatform();
std::unique_ptr<OverlayMaker> makeNullOverlays();

} // namespace morrowleaf
