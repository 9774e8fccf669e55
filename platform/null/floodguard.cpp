// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/floodguard.h"

namespace morrowleaf {

// Nothing is known of the connections, so none is ended.
FloodGuard::FloodGuard() = default;

bool FloodGuard::end(std::uint64_t /*bytes*/) const {
    return false;
}

} // namespace morrowleaf
