// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/platform.h"

#include <memory>

namespace morrowleaf {

// The parts of the platform that macOS has; the toolkit's own serve for the others. Main
// thread.

enum class SystemVersion { BeforeGlass, WithGlass }; // macOS 26 has glass

std::unique_ptr<MainScreen> makeMacMainScreen();
std::unique_ptr<OverlayMaker> makeMacOverlays(SystemVersion version);
std::unique_ptr<SessionEvents> makeMacSession();
std::unique_ptr<LoginItem> makeMacLoginItem();
std::unique_ptr<InputTaps> makeMacInputTaps();
std::unique_ptr<Floater> makeMacFloater();
std::unique_ptr<TrayHost> makeMacTray();

// Replaces the parts of `platform` with these.
void addMacParts(Platform& platform, SystemVersion version);

} // namespace morrowleaf
