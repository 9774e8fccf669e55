// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

namespace morrowleaf {

// Calls `work` once with each of 0...count - 1, in any order, on this thread and
// on free threads of Qt's global pool. Returns when all calls have returned.
void inParallel(int count, const std::function<void(int)>& work);

} // namespace morrowleaf
