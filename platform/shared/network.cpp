// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/network.h"

#include "platform/shared/sockets.h"

#include <QDir>
#include <QScopeGuard>

#include <functional>

#include <fcntl.h>
#include <netdb.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

bool isSocket(int fd) {
    struct stat info {};
    return ::fstat(fd, &info) == 0 && S_ISSOCK(info.st_mode);
}

// Passes duplicates of the descriptors, because another thread may close the originals.
void forEachSocket(const std::function<void(int)>& visit) {
    const QStringList names = QDir(u"/dev/fd"_s).entryList(QDir::System | QDir::Files);
    for (const QString& name : names) {
        const int fd = ::fcntl(name.toInt(), F_DUPFD_CLOEXEC, 0);
        if (fd < 0) {
            continue;
        }
        const auto close = qScopeGuard([fd] { ::close(fd); });
        if (isSocket(fd)) {
            visit(fd);
        }
    }
}

} // namespace

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

FloodGuard::FloodGuard() {
    forEachSocket([this](int fd) { exempt_.insert(identifySocket(fd)); });
}

bool FloodGuard::end(std::uint64_t limit) const {
    bool flood = false;
    forEachSocket([&](int fd) {
        if (bytesReceived(fd) > limit && !exempt_.contains(identifySocket(fd))) {
            ::shutdown(fd, SHUT_RDWR);
            flood = true;
        }
    });
    return flood;
}

} // namespace morrowleaf
