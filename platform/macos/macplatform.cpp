// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/macos/macparts.h"

namespace morrowleaf {

void addMacParts(Platform& platform, SystemVersion version) {
    platform.mainScreen = makeMacMainScreen();
    platform.overlays = makeMacOverlays(version);
    platform.sessionEvents = makeMacSession();
    platform.trayHost = makeMacTray();
    platform.loginItem = makeMacLoginItem();
    platform.inputTaps = makeMacInputTaps();
    platform.floater = makeMacFloater();
}

} // namespace morrowleaf
