// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/trayhost.h"

#include <memory>

namespace morrowleaf {

// Looks for a host of status notifier items on the session bus and, with
// `x11`, for a tray of the older kind on the X server.
std::unique_ptr<TrayHost> makeDesktopTray(bool x11);

} // namespace morrowleaf
