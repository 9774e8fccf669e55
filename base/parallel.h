// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

namespace morrowleaf {

// Calls `what` with 0...count - 1, each once and in any order, on this thread
// and on workers that have nothing else to do; returns when all have ended.
void inParallel(int count, const std::function<void(int)>& what);

} // namespace morrowleaf
