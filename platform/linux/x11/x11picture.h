// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/desktoppicture.h"

#include <memory>

namespace morrowleaf {

std::unique_ptr<DesktopPicture> makeX11Picture();

} // namespace morrowleaf
