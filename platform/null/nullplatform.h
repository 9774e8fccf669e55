// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/platform.h"

#include <memory>

namespace morrowleaf {

// A platform that leaves the desktop alone: overlays are ordinary windows on the primary
// screen, session events never occur, and the login item is kept in memory only.
Platform makeNullPlatform();

// Every process is an instance.
std::unique_ptr<SingleInstance> makeNullInstance();

} // namespace morrowleaf
