// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/desktoppicture.h"
#include "platform/linux/wayland/waylandglobals.h"

#include <memory>

namespace morrowleaf {

// Pictures by the compositor's screen copying; null ones where it has none.
std::unique_ptr<DesktopPicture> makeScreencopy();

} // namespace morrowleaf
