// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/network.h"

#include <QByteArray>

#include <netdb.h>
#include <sys/socket.h>

namespace morrowleaf {

bool hasAddress(const QByteArray& host) {
    addrinfo wanted{};
    wanted.ai_family = AF_UNSPEC;
    wanted.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (::getaddrinfo(host.constData(), nullptr, &wanted, &found) != 0) {
        return false;
    }
    ::freeaddrinfo(found);
    return true;
}

} // namespace morrowleaf
