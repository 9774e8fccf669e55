// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <set>

namespace morrowleaf {

// Ends connections that bring far more than they should. The network layer has
// no bound on what it takes in for a header, or as compressed data that unpacks
// to nothing, so the connections of the process are asked themselves.
class FloodGuard {
public:
    // The connections that are open now are not this guard's.
    FloodGuard();

    // Shuts every later TCP connection of the process down that has received
    // more than `bytes`; whether there was one.
    bool end(std::uint64_t bytes) const;

private:
    std::set<std::uint64_t> others_;
};

} // namespace morrowleaf
