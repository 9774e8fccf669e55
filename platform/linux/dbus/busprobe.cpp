// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/busprobe.h"

#include <QFile>
#include <QStandardPaths>

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <optional>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

struct SocketAddress {
    sockaddr_un name{};
    socklen_t length = 0;
};

// The first address of a list, where it names a socket.
std::optional<SocketAddress> socketAddress(const QString& address) {
    const QString path = busSocket(address);
    const auto abstractPrefix = "unix:abstract="_L1;
    QByteArray name = QFile::encodeName(path);
    if (path.isEmpty() && address.startsWith(abstractPrefix)) {
        const QString first = address.section(u';', 0, 0).section(u',', 0, 0);
        name = '\0' + QByteArray::fromPercentEncoding(first.mid(abstractPrefix.size()).toUtf8());
    }
    SocketAddress result;
    if (name.isEmpty() || static_cast<size_t>(name.size()) >= sizeof result.name.sun_path) {
        return std::nullopt;
    }
    result.name.sun_family = AF_UNIX;
    std::memcpy(result.name.sun_path, name.constData(), static_cast<size_t>(name.size()));
    result.length =
        static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + static_cast<size_t>(name.size()));
    return result;
}

} // namespace

QString busAddress(QDBusConnection::BusType type) {
    const bool system = type == QDBusConnection::SystemBus;
    const QString address =
        qEnvironmentVariable(system ? "DBUS_SYSTEM_BUS_ADDRESS" : "DBUS_SESSION_BUS_ADDRESS");
    if (!address.isEmpty()) {
        return address;
    }
    return "unix:path="_L1 +
           (system ? u"/run/dbus/system_bus_socket"_s
                   : QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + "/bus"_L1);
}

QString busSocket(const QString& address) {
    const auto prefix = "unix:path="_L1;
    if (!address.startsWith(prefix)) {
        return {};
    }
    const QString first = address.section(u';', 0, 0).section(u',', 0, 0);
    return QFile::decodeName(QByteArray::fromPercentEncoding(first.mid(prefix.size()).toUtf8()));
}

BusProbe::BusProbe(const QString& address) {
    const auto target = socketAddress(address);
    if (!target) {
        answer_ = Answer::Some;
        return;
    }
    descriptor_ = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const QByteArray question =
        '\0' + ("AUTH EXTERNAL " + QByteArray::number(::getuid()).toHex() + "\r\n");
    if (::connect(descriptor_, reinterpret_cast<const sockaddr*>(&target->name), target->length) ==
            0 &&
        ::send(descriptor_, question.constData(), static_cast<size_t>(question.size()),
               MSG_NOSIGNAL) == question.size()) {
        return;
    }
    // EAGAIN: too many connections wait for a bus that does not accept them.
    answer_ = errno == EAGAIN ? Answer::None : Answer::Missing;
    ::close(descriptor_);
    descriptor_ = -1;
}

BusProbe::~BusProbe() {
    if (descriptor_ >= 0) {
        ::close(descriptor_);
    }
}

BusProbe::Answer BusProbe::answer() {
    if (descriptor_ >= 0 && answer_ == Answer::None) {
        char byte = 0;
        const auto received = ::recv(descriptor_, &byte, 1, MSG_DONTWAIT);
        if (received > 0) {
            answer_ = Answer::Some;
        } else if (received == 0 || (errno != EAGAIN && errno != EINTR)) {
            answer_ = Answer::Closed;
        }
    }
    return answer_;
}

BusProbe::Answer BusProbe::wait(int milliseconds) {
    if (descriptor_ >= 0 && answer() == Answer::None) {
        pollfd readable{.fd = descriptor_, .events = POLLIN, .revents = 0};
        ::poll(&readable, 1, milliseconds);
    }
    return answer();
}

} // namespace morrowleaf
