// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/chooser.h"

#include "platform/macos/core/maccore.h"
#include "platform/macos/macparts.h"
#include "platform/null/nullplatform.h"
#include "platform/shared/lockedinstance.h"
#include "platform/shared/socketchannel.h"
#include "platform/system.h"

#include <QDir>
#include <QOperatingSystemVersion>

#include <utility>

namespace morrowleaf {

enum class WindowSystem : int { Cocoa };

namespace {

// The folder of the settings, which lasts as long as the program is installed; the system
// tidies the temporary ones.
QString meetingPlace() {
    QDir().mkpath(settingsFolder());
    return settingsFolder();
}

} // namespace

WindowSystem chooseWindowSystem() {
    return WindowSystem::Cocoa;
}

std::optional<QString> findObstacle(WindowSystem /*system*/) {
    return std::nullopt;
}

std::unique_ptr<SingleInstance> makeInstance(WindowSystem /*system*/) {
    const QString folder = meetingPlace();
    return std::make_unique<LockedInstance>(folder, [folder] {
        LockedInstance::Senders senders;
        senders.push_back(std::make_unique<SocketSender>(folder));
        return senders;
    });
}

std::unique_ptr<ToolkitGuard> makeToolkitGuard() {
    return std::make_unique<ToolkitGuard>();
}

bool isWaitingForAnswer() {
    return false;
}

Platform makePlatform(WindowSystem /*system*/) {
    // The bundle says so as well, but the program may run outside of one.
    macBecomeAccessory();
    constexpr QOperatingSystemVersion firstWithGlass(QOperatingSystemVersion::MacOS, 26);
    const bool hasGlass = QOperatingSystemVersion::current() >= firstWithGlass;
    // Of the rest, the toolkit follows dark mode by itself, and its file dialog is the
    // system's. There is no picture of the desktop: what is behind the window shows.
    Platform platform = makeNullPlatform();
    addMacParts(platform, hasGlass ? SystemVersion::WithGlass : SystemVersion::BeforeGlass);
    platform.requests = std::make_unique<SocketListener>(meetingPlace());
    return platform;
}

std::unique_ptr<LoginItem> makeLoginItem() {
    return makeMacLoginItem();
}

} // namespace morrowleaf
