// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/beeper.h"

#include <memory>

namespace morrowleaf {

std::unique_ptr<Beeper> makeDesktopBeeper();

} // namespace morrowleaf
