// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDBusConnection>
#include <QString>

namespace morrowleaf {

// The address of a bus, by the environment or by its usual place.
QString busAddress(QDBusConnection::BusType type);

// The path of the socket in an address; empty unless it begins with "unix:path=".
QString busSocket(const QString& address);

// Asks a bus to authenticate this user, to find out whether it answers at all. libdbus
// would wait for the answer, and Qt lets every other connection of the process wait with
// it. Needs no application object. One thread at a time.
class BusProbe {
public:
    enum class Answer {
        None,    // not yet
        Some,    // the bus is alive; also for addresses that only libdbus understands
        Closed,  // it has closed the connection
        Missing, // nothing listens at the address
    };

    // Sends the question; never blocks.
    explicit BusProbe(const QString& address);
    ~BusProbe();
    BusProbe(const BusProbe&) = delete;
    BusProbe& operator=(const BusProbe&) = delete;

    // Becomes readable with the answer. -1 if no answer can arrive.
    int descriptor() const { return descriptor_; }
    // Never blocks.
    Answer answer();
    // Waits up to `milliseconds` for an answer.
    Answer wait(int milliseconds);

private:
    int descriptor_ = -1;
    Answer answer_ = Answer::None;
};

} // namespace morrowleaf
