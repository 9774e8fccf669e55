// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/buslink.h"

#include "tests/platform/privatebus.h"

#include <QSignalSpy>

namespace morrowleaf {
namespace {

class BusLinkTest : public testing::Test {
protected:
    PrivateBus daemon;
    BusLink link{QDBusConnection::SessionBus};
    QSignalSpy ups{&link, &BusLink::up};
};

TEST_F(BusLinkTest, ConnectsAtOnce) {
    link.open();
    EXPECT_EQ(ups.size(), 1);
    EXPECT_TRUE(link.bus().isConnected());
}

TEST_F(BusLinkTest, ConnectsAgainWhenTheBusComesBack) {
    link.open();
    for (int restarts = 1; restarts <= 2; ++restarts) {
        daemon.stop();
        EXPECT_TRUE(becomesTrue([this] { return !link.bus().isConnected(); }));
        daemon.start();
        EXPECT_TRUE(becomesTrue([&] { return ups.size() == 1 + restarts; }));
        EXPECT_TRUE(link.bus().isConnected());
    }
}

TEST_F(BusLinkTest, WaitsForABusThatIsNotThereYet) {
    daemon.stop();
    link.open();
    EXPECT_EQ(ups.size(), 0);
    EXPECT_FALSE(link.bus().isConnected());
    daemon.start();
    EXPECT_TRUE(becomesTrue([this] { return ups.size() == 1; }));
    EXPECT_TRUE(link.bus().isConnected());
}

} // namespace
} // namespace morrowleaf
