// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/network.h"

namespace morrowleaf {

// This backend does not know how much a connection has received, so it ends none.
FloodGuard::FloodGuard() = default;

bool FloodGuard::end(std::uint64_t /*limit*/) const {
    return false;
}

} // namespace morrowleaf
