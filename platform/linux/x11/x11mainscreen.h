// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/mainscreen.h"

#include <memory>

namespace morrowleaf {

std::unique_ptr<MainScreen> makeX11MainScreen();

} // namespace morrowleaf
