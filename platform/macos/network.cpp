// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/sockets.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

namespace morrowleaf {

namespace {

using NameOf = int (*)(int, sockaddr*, socklen_t*);

QByteArray nameOf(int fd, NameOf ask) {
    sockaddr_storage name{};
    socklen_t size = sizeof name;
    const bool known = ask(fd, reinterpret_cast<sockaddr*>(&name), &size) == 0;
    return known ? QByteArray(reinterpret_cast<const char*>(&name), static_cast<qsizetype>(size))
                 : QByteArray();
}

} // namespace

// Sockets have no inodes here.
QByteArray identifySocket(int fd) {
    return nameOf(fd, &::getsockname) + nameOf(fd, &::getpeername);
}

std::uint64_t bytesReceived(int fd) {
    tcp_connection_info info{};
    socklen_t size = sizeof info;
    const bool known = ::getsockopt(fd, IPPROTO_TCP, TCP_CONNECTION_INFO, &info, &size) == 0;
    return known ? info.tcpi_rxbytes : 0;
}

} // namespace morrowleaf
