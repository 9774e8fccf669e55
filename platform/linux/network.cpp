// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/sockets.h"

#include <linux/tcp.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>

namespace morrowleaf {

QByteArray identifySocket(int fd) {
    struct stat info {};
    return ::fstat(fd, &info) == 0 ? QByteArray::number(qulonglong{info.st_ino}) : QByteArray();
}

std::uint64_t bytesReceived(int fd) {
    tcp_info info{};
    socklen_t size = sizeof info;
    const bool known = ::getsockopt(fd, IPPROTO_TCP, TCP_INFO, &info, &size) == 0;
    return known ? info.tcpi_bytes_received : 0;
}

} // namespace morrowleaf
