// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <cstdint>

namespace morrowleaf {

// What a FloodGuard asks the system about a socket; every backend answers. Any thread.

// The same for all descriptors of a socket, and for no other socket that is open.
QByteArray identifySocket(int fd);
// Over a TCP connection; 0 if `fd` is none, or if the system does not count.
std::uint64_t bytesReceived(int fd);

} // namespace morrowleaf
