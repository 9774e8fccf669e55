// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/singleinstance.h"

#include <memory>

namespace morrowleaf {

// One instance in a session: by a name on its bus or, without a bus, by a
// socket in the user's runtime folder.
std::unique_ptr<SingleInstance> makeDesktopInstance();

} // namespace morrowleaf
