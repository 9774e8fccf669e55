// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/system.h"

#include "platform/network.h"

#include <chrono>

namespace morrowleaf {

double uptime() {
    const std::chrono::duration<double> since = std::chrono::steady_clock::now().time_since_epoch();
    return since.count();
}

void releaseFreeMemory() {}

void ignoreBrokenPipes() {}

std::FILE* divertErrorOutput() {
    return nullptr;
}

// This backend does not know how much a connection has received, so it ends none.
FloodGuard::FloodGuard() = default;

bool FloodGuard::end(std::uint64_t /*limit*/) const {
    return false;
}

} // namespace morrowleaf
