// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <cstdint>
#include <set>

namespace morrowleaf {

// Whether the system's resolver finds an address for `host`, which is a host
// name or a literal address. Blocks as long as the resolver does, which may be
// minutes. Any thread.
bool hasAddress(const QByteArray& host);

// Ends TCP connections that receive far more than they should. Qt Network does
// not bound what it reads for a header, or as compressed data that decompresses
// to almost nothing; this asks the kernel how much each connection of the
// process has received. Any thread.
class FloodGuard {
public:
    // Sockets that are open at this moment are exempt.
    FloodGuard();

    // Shuts down every later TCP connection of the process that has received
    // more than `limit` bytes. Returns whether there was one; always false
    // if the system does not count.
    bool end(std::uint64_t limit) const;

private:
    std::set<QByteArray> exempt_; // identities of sockets
};

} // namespace morrowleaf
