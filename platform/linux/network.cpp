// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/network.h"

#include <QDir>
#include <QScopeGuard>

#include <functional>
#include <optional>

#include <fcntl.h>
#include <linux/tcp.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

std::optional<std::uint64_t> socketIdentity(int fd) {
    struct stat info {};
    if (::fstat(fd, &info) != 0 || !S_ISSOCK(info.st_mode)) {
        return std::nullopt;
    }
    return info.st_ino;
}

// Passes duplicates of the descriptors, because another thread may close the originals.
void forEachSocket(const std::function<void(int, std::uint64_t)>& visit) {
    const QStringList names = QDir(u"/proc/self/fd"_s).entryList(QDir::System | QDir::Files);
    for (const QString& name : names) {
        const int fd = ::fcntl(name.toInt(), F_DUPFD_CLOEXEC, 0);
        if (fd < 0) {
            continue;
        }
        const auto close = qScopeGuard([fd] { ::close(fd); });
        if (const auto identity = socketIdentity(fd)) {
            visit(fd, *identity);
        }
    }
}

std::uint64_t bytesReceived(int fd) {
    tcp_info info{};
    socklen_t size = sizeof info;
    const bool known = ::getsockopt(fd, IPPROTO_TCP, TCP_INFO, &info, &size) == 0;
    return known ? info.tcpi_bytes_received : 0;
}

} // namespace

FloodGuard::FloodGuard() {
    forEachSocket([this](int, std::uint64_t identity) { exempt_.insert(identity); });
}

bool FloodGuard::end(std::uint64_t limit) const {
    bool flood = false;
    forEachSocket([&](int fd, std::uint64_t identity) {
        if (!exempt_.contains(identity) && bytesReceived(fd) > limit) {
            ::shutdown(fd, SHUT_RDWR);
            flood = true;
        }
    });
    return flood;
}

} // namespace morrowleaf
