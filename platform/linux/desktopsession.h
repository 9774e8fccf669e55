// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/sessionevents.h"

#include <memory>

namespace morrowleaf {

// All sources of session events, merged.
std::unique_ptr<SessionEvents> makeDesktopSession();

} // namespace morrowleaf
