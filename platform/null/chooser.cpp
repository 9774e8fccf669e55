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

std::unique_ptr<SingleInstance> makeInstance(WindowSystem /*system*/) {
    return makeNullInstance();
}

std::unique_ptr<ToolkitGuard> makeToolkitGuard() {
    return std::make_unique<ToolkitGuard>();
}

bool isWaitingForAnswer() {
    return false;
}

Platform makePlatform(WindowSystem /*system*/) {
    return makeNullPlatform();
}

std::unique_ptr<LoginItem> makeLoginItem() {
    return makeNullPlatform().loginItem;
}

} // namespace morrowleaf
