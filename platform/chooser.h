// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/platform.h"
#include "platform/toolkitguard.h"

#include <QString>

#include <memory>
#include <optional>

namespace morrowleaf {

// How windows are shown. The values belong to the backend; other rooms only pass them on.
enum class WindowSystem : int;

// Inspects the session and prepares the environment for the result. Call
// before the application object is created.
WindowSystem chooseWindowSystem();

// Why nothing can be shown on the display of `system`, as a sentence for the user;
// std::nullopt if there is no obstacle. Call before the application object is created:
// without a server Qt aborts the process.
[[nodiscard]] std::optional<QString> findObstacle(WindowSystem system);

// Call before the application object is created. `system` is the result of
// chooseWindowSystem().
std::unique_ptr<SingleInstance> makeInstance(WindowSystem system);

// Call as early as possible: what happens before the application object is created costs
// no further time.
std::unique_ptr<ToolkitGuard> makeToolkitGuard();

// Whether destroying static objects may wait for, or meet, a thread that still waits for
// somebody who may never answer. Then end the process without that.
[[nodiscard]] bool isWaitingForAnswer();

// Creates all parts. Call after the application object was created.
Platform makePlatform(WindowSystem system);

// The login item of makePlatform(); unlike the rest it needs no application object.
std::unique_ptr<LoginItem> makeLoginItem();

} // namespace morrowleaf
