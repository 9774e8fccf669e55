// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/platform.h"

namespace morrowleaf {

// A way in which a backend brings windows onto the screen. Its cases are the
// backend's own; everybody else hands the value on.
enum class WindowSystem : int;

// Looks at the session and prepares the environment for it. Call before the
// application object is made.
WindowSystem chooseWindowSystem();

// Whether the application object can be made: without the server of that window
// system Qt ends the process. Call before.
bool isReachable(WindowSystem system);

// Call after the application object was made.
Platform makePlatform(WindowSystem system);

// The one part that works without an application object.
std::unique_ptr<LoginItem> makeLoginItem();

} // namespace morrowleaf
