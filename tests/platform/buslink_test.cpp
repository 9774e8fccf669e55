// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/buslink.h"

#include "tests/platform/privatebus.h"

#include <QDBusConnectionInterface>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLocalServer>
#include <QLocalSocket>
#include <QSignalSpy>

#include <vector>

namespace morrowleaf {
namespace {

class BusLinkTest : public testing::Test {
protected:
    bool isUp(int times) {
        return becomesTrue([&] { return ups.size() == times; }) && link.bus().isConnected();
    }

    PrivateBus daemon;
    BusLink link{QDBusConnection::SessionBus};
    QSignalSpy ups{&link, &BusLink::up};
};

TEST_F(BusLinkTest, Connects) {
    link.open();
    EXPECT_TRUE(isUp(1));
}

TEST_F(BusLinkTest, ConnectsAgainWhenTheBusComesBack) {
    link.open();
    EXPECT_TRUE(isUp(1));
    for (int restarts = 1; restarts <= 2; ++restarts) {
        daemon.stop();
        EXPECT_TRUE(becomesTrue([this] { return !link.bus().isConnected(); }));
        daemon.start();
        EXPECT_TRUE(isUp(1 + restarts));
    }
}

TEST_F(BusLinkTest, WaitsForABusThatIsNotThereYet) {
    daemon.stop();
    link.open();
    EXPECT_EQ(ups.size(), 0);
    EXPECT_FALSE(link.bus().isConnected());
    daemon.start();
    EXPECT_TRUE(isUp(1));
}

TEST_F(BusLinkTest, ConnectsOnceAStoppedBusGoesOn) {
    daemon.pause();
    QElapsedTimer waited;
    waited.start();
    link.open();
    EXPECT_LT(waited.elapsed(), 20'000) << "libdbus waits for 25 seconds";
    EXPECT_FALSE(link.bus().isConnected());
    daemon.resume();
    EXPECT_TRUE(isUp(1));
}

TEST_F(BusLinkTest, ABusThatHangsHindersNoOther) {
    daemon.pause();
    link.open();
    QTemporaryDir folder;
    const QString address = "unix:path="_L1 + folder.filePath(u"other"_s);
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", address.toUtf8());
    BusLink other(QDBusConnection::SystemBus);
    QSignalSpy otherUps(&other, &BusLink::up);
    QProcess second;
    second.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--nopidfile"_s,
                                    u"--print-address"_s, u"--address="_s + address});
    ASSERT_TRUE(second.waitForReadyRead());
    other.open();
    EXPECT_TRUE(becomesTrue([&] { return otherUps.size() == 1; }));
    EXPECT_EQ(ups.size(), 0);
    second.terminate();
    second.waitForFinished();
}

// A bus that answers the first connection only: libdbus waits on the second.
TEST_F(BusLinkTest, NeitherDoesOneThatHangsInTheMiddle) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"other"_s);
    QLocalServer server;
    ASSERT_TRUE(server.listen(path));
    std::vector<QLocalSocket*> clients;
    QObject::connect(&server, &QLocalServer::newConnection, &server, [&] {
        clients.push_back(server.nextPendingConnection());
        if (clients.size() == 1) {
            clients.front()->write("REJECTED EXTERNAL\r\n");
        }
    });
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=" + path.toUtf8());
    BusLink hanging(QDBusConnection::SystemBus);
    hanging.open();
    ASSERT_TRUE(becomesTrue([&] { return clients.size() == 2; }));
    QElapsedTimer waited;
    waited.start();
    {
        BusLink unused(QDBusConnection::SessionBus);
        link.open();
        EXPECT_EQ(BusProbe(busAddress(QDBusConnection::SessionBus)).wait(30'000),
                  BusProbe::Answer::Some); // which the link has been given as well
        QCoreApplication::processEvents();
        EXPECT_FALSE(link.bus().isConnected());
    }
    EXPECT_TRUE(BusLink::isAnyConnecting());
    EXPECT_LT(waited.elapsed(), 20'000) << "libdbus waits for 25 seconds";
    server.close();
    clients[1]->abort();
    EXPECT_TRUE(isUp(1));
    EXPECT_TRUE(becomesTrue([] { return !BusLink::isAnyConnecting(); }));
}

TEST_F(BusLinkTest, SaysWhenNobodyHasToWaitForTheBus) {
    QSignalSpy decisions(&link, &BusLink::decided);
    daemon.pause();
    link.open();
    QTest::qWait(0);
    EXPECT_EQ(decisions.size(), 0);
    daemon.resume();
    EXPECT_TRUE(becomesTrue([&] { return decisions.size() == 1; }));
    EXPECT_TRUE(link.bus().isConnected());
    daemon.stop();
    BusLink missing(QDBusConnection::SessionBus);
    QSignalSpy others(&missing, &BusLink::decided);
    missing.open();
    EXPECT_TRUE(becomesTrue([&] { return others.size() == 1; }));
    EXPECT_FALSE(missing.bus().isConnected());
}

TEST_F(BusLinkTest, LeavesNoConnectionBehindWhenDestroyedWhileConnecting) {
    QDBusConnection observer = PrivateBus::connect();
    const auto connections = [&] {
        return observer.interface()->registeredServiceNames().value().filter(u":"_s).size();
    };
    const auto before = connections();
    int destroyed = 0;
    for (int i = 0; i < 10; ++i) {
        BusLink unused(QDBusConnection::SessionBus);
        QSignalSpy decisions(&unused, &BusLink::decided);
        unused.open();
        while (!BusLink::isAnyConnecting() && decisions.isEmpty()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        destroyed += decisions.isEmpty() ? 1 : 0;
    }
    EXPECT_GT(destroyed, 0);
    EXPECT_TRUE(becomesTrue([] { return !BusLink::isAnyConnecting(); }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return connections() == before; }, 5000))
        << connections() - before;
}

TEST_F(BusLinkTest, TriesABusAgainThatClosesTheConnection) {
    daemon.stop();
    QLocalServer closing;
    ASSERT_TRUE(closing.listen(busSocket(busAddress(QDBusConnection::SessionBus))));
    int connections = 0;
    QObject::connect(&closing, &QLocalServer::newConnection, &closing, [&] {
        ++connections;
        closing.nextPendingConnection()->abort();
    });
    link.open();
    EXPECT_TRUE(becomesTrue([&] { return connections == 2; }));
    closing.close();
    daemon.start();
    EXPECT_TRUE(isUp(1));
}

TEST(BusProbeTest, SeesWhetherSomebodyAnswers) {
    PrivateBus daemon;
    const QString address = busAddress(QDBusConnection::SessionBus);
    EXPECT_EQ(BusProbe(address).wait(30'000), BusProbe::Answer::Some);
    daemon.pause();
    EXPECT_EQ(BusProbe(address).wait(1), BusProbe::Answer::None);
    daemon.resume();
    EXPECT_EQ(BusProbe(address + ",guid=0"_L1).wait(30'000), BusProbe::Answer::Some);
    daemon.stop();
    EXPECT_EQ(BusProbe(address).wait(30'000), BusProbe::Answer::Missing);
}

TEST(BusProbeTest, LeavesOtherAddressesToTheLibrary) {
    EXPECT_EQ(BusProbe(u"tcp:host=localhost,port=1"_s).wait(0), BusProbe::Answer::Some);
    EXPECT_EQ(BusProbe(u"unix:abstract=/morrowleaf/nobody"_s).wait(0), BusProbe::Answer::Missing);
    EXPECT_EQ(busSocket(u"unix:path=/a%20b,guid=1;unix:path=/c"_s), u"/a b"_s);
}

} // namespace
} // namespace morrowleaf
