// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/platform.h"

namespace morrowleaf {

// A platform that leaves the desktop alone: overlays are ordinary windows on the primary
// screen, session events never occur, and the login item is kept in memory only.
Platform makeNullPlatform();

} // namespace morrowleaf
