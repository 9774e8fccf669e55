// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/chooser.h"

#include "platform/null/nullplatform.h"

namespace morrowleaf {

enum class WindowSystem : int { Null };

WindowSystem chooseWindowSystem() {
    return WindowSystem::Null;
}

std::optional<QString> findObstacle(WindowSystem /*system*/) {
    return std::nullopt;
}

Platform makePlatform(WindowSystem /*system*/) {
    return makeNullPlatform();
}

std::unique_ptr<LoginItem> makeLoginItem() {
    return makeNullPlatform().loginItem;
}

} // namespace morrowleaf
