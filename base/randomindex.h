// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <functional>

namespace morrowleaf {

// Draws uniformly from 0 to count - 1; count is at least 1.
using RandomIndex = std::function<qsizetype(qsizetype count)>;

// Draws from the system's secure random source.
RandomIndex secureRandomIndex();

} // namespace morrowleaf
