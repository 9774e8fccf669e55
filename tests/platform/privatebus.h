// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/dbus/buslink.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QUuid>
#include <gtest/gtest.h>

#include <csignal>
#include <memory>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

// Runs the event loop until `condition` holds; false after half a minute.
template <typename Condition>
bool becomesTrue(Condition condition) {
    return QTest::qWaitFor(condition, 30'000);
}

// A message bus of the test's own, as the session's and as the system's. The
// address is the same in the whole process: libdbus reads the environment once.
class PrivateBus {
public:
    PrivateBus() {
        qputenv("DBUS_SESSION_BUS_ADDRESS", address().toUtf8());
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", address().toUtf8());
        start();
    }
    ~PrivateBus() { stop(); }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    void start() {
        daemon_.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--nopidfile"_s,
                                         u"--print-address"_s, u"--address="_s + address()});
        // It prints the address once it listens.
        ASSERT_TRUE(daemon_.waitForReadyRead()) << "no dbus-daemon";
    }
    void stop() {
        resume();
        daemon_.terminate();
        daemon_.waitForFinished();
        QFile::remove(socket());
    }
    // Between the two the bus takes messages and answers none.
    void pause() { ::kill(static_cast<pid_t>(daemon_.processId()), SIGSTOP); }
    void resume() {
        if (daemon_.state() == QProcess::Running) {
            ::kill(static_cast<pid_t>(daemon_.processId()), SIGCONT);
        }
    }

    // A further connection, such as a service's.
    static QDBusConnection connect() {
        return QDBusConnection::connectToBus(address(), QUuid::createUuid().toString());
    }

private:
    static QString socket() {
        static const QTemporaryDir folder;
        return folder.filePath(u"bus"_s);
    }
    static QString address() { return u"unix:path="_s + socket(); }

    QProcess daemon_;
};

// The program's connection to the session bus, not open yet.
inline std::shared_ptr<BusLink> sessionLink() {
    return std::make_shared<BusLink>(QDBusConnection::SessionBus);
}

// A connection that owns a well-known name and sends signals.
class FakeService {
public:
    explicit FakeService(const QString& name)
        : bus(PrivateBus::connect()) {
        EXPECT_TRUE(name.isEmpty() || bus.registerService(name));
    }
    ~FakeService() { QDBusConnection::disconnectFromBus(bus.name()); }
    FakeService(const FakeService&) = delete;
    FakeService& operator=(const FakeService&) = delete;

    void send(const QString& path, const QString& interface, const QString& signal,
              const QVariantList& arguments = {}) {
        auto message = QDBusMessage::createSignal(path, interface, signal);
        message.setArguments(arguments);
        bus.send(message);
    }

    // The bus has forwarded everything that was sent before when this returns.
    void waitForBus() {
        bus.call(QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/"_s,
                                                u"org.freedesktop.DBus"_s, u"GetId"_s));
    }

    QDBusConnection bus;
};

} // namespace morrowleaf
