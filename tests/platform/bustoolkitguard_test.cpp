// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/bustoolkitguard.h"

#include "tests/platform/privatebus.h"

#include <QDir>

namespace morrowleaf {
namespace {

class BusToolkitGuardTest : public testing::Test {
protected:
    void SetUp() override {
        qputenv("XDG_CURRENT_DESKTOP", "GNOME");
        qunsetenv("AT_SPI_BUS_ADDRESS");
    }
    void TearDown() override {
        qunsetenv("XDG_CURRENT_DESKTOP");
        qunsetenv("AT_SPI_BUS_ADDRESS");
    }
    static QByteArray desktop() { return qgetenv("XDG_CURRENT_DESKTOP"); }
    static qsizetype descriptors() {
        return QDir(u"/proc/self/fd"_s).entryList(QDir::Files | QDir::System).size();
    }

    PrivateBus daemon;
};

TEST_F(BusToolkitGuardTest, KeepsEverythingBesideABusThatAnswers) {
    const qsizetype before = descriptors();
    BusToolkitGuard guard;
    EXPECT_EQ(BusProbe(busAddress(QDBusConnection::SessionBus)).wait(30'000),
              BusProbe::Answer::Some)
        << "which is asked after the guard's question";
    guard.prepareApplication();
    EXPECT_EQ(desktop(), "GNOME");
    guard.prepareFirstWindow();
    EXPECT_FALSE(qEnvironmentVariableIsSet("AT_SPI_BUS_ADDRESS"));
    EXPECT_EQ(descriptors(), before) << "the bus complains about clients that say nothing more";
}

TEST_F(BusToolkitGuardTest, HidesTheDesktopOnlyFromTheToolkitBesideASilentBus) {
    daemon.pause();
    const qsizetype before = descriptors();
    BusToolkitGuard guard;
    guard.prepareApplication();
    EXPECT_EQ(desktop(), "unknown");
    guard.prepareFirstWindow();
    EXPECT_EQ(desktop(), "GNOME");
    EXPECT_EQ(qgetenv("AT_SPI_BUS_ADDRESS"), "disabled:");
    EXPECT_EQ(descriptors(), before);
}

TEST_F(BusToolkitGuardTest, IsMorePatientOnABusyMachine) {
    EXPECT_EQ(patienceAfter(2), 15);
    EXPECT_EQ(patienceAfter(20), 100);
    EXPECT_EQ(patienceAfter(100), 250);
}

} // namespace
} // namespace morrowleaf
