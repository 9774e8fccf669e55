// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/busservice.h"

#include "bus_interface.h"
#include "login1_interface.h"
#include "portal_interface.h"
#include "tests/platform/privatebus.h"

#include <QElapsedTimer>
#include <QMetaType>
#include <QSignalSpy>

#include <memory>
#include <vector>

namespace morrowleaf {
namespace {

const QString name = u"org.example.Service"_s;
const QString path = u"/org/example"_s;
const QString managerInterface = u"org.freedesktop.login1.Manager"_s;

class BusServiceTest : public testing::Test {
protected:
    bool isOwnedBy(const FakeService& fake) const {
        return service.owner() == fake.bus.baseService();
    }

    PrivateBus daemon;
    QDBusConnection bus = PrivateBus::connect();
    BusService service{name};
    QSignalSpy appearances{&service, &BusService::appeared};
    QSignalSpy vanishings{&service, &BusService::vanished};
};

TEST_F(BusServiceTest, FindsAnOwnerThatIsThere) {
    const FakeService fake(name);
    service.follow(bus);
    EXPECT_TRUE(service.owner().isEmpty());
    EXPECT_TRUE(becomesTrue([&] { return isOwnedBy(fake); }));
    EXPECT_EQ(appearances.size(), 1);
    EXPECT_EQ(vanishings.size(), 0);
}

TEST_F(BusServiceTest, FollowsOwnersThatComeAndGo) {
    service.follow(bus);
    for (int times = 1; times <= 2; ++times) {
        auto fake = std::make_unique<FakeService>(name);
        EXPECT_TRUE(becomesTrue([&] { return isOwnedBy(*fake); }));
        EXPECT_EQ(appearances.size(), times);
        fake.reset();
        EXPECT_TRUE(becomesTrue([&] { return vanishings.size() == times; }));
        EXPECT_TRUE(service.owner().isEmpty());
    }
}

TEST_F(BusServiceTest, TellsTheOwnersSignalsFromOthers) {
    FakeService impostor({});
    FakeService fake(name);
    service.follow(bus);
    EXPECT_TRUE(becomesTrue([&] { return isOwnedBy(fake); }));
    BusSignals<OrgFreedesktopLogin1ManagerInterface> manager(path, bus, nullptr);
    std::vector<bool> sent;
    QObject::connect(&manager, &OrgFreedesktopLogin1ManagerInterface::PrepareForSleep, &service,
                     [&] { sent.push_back(service.sent(manager)); });
    impostor.send(path, managerInterface, u"PrepareForSleep"_s, {true});
    EXPECT_TRUE(becomesTrue([&] { return sent.size() == 1; }));
    fake.send(path, managerInterface, u"PrepareForSleep"_s, {true});
    EXPECT_TRUE(becomesTrue([&] { return sent.size() == 2; }));
    EXPECT_EQ(sent, (std::vector{false, true}));
    EXPECT_FALSE(service.sent(manager)) << "no signal is being delivered";
}

TEST_F(BusServiceTest, TellsWhenNobodyCanBeActivated) {
    QSignalSpy failures(&service, &BusService::activationFailed);
    service.follow(bus);
    service.activate();
    EXPECT_TRUE(becomesTrue([&] { return failures.size() == 1; }));
    EXPECT_EQ(appearances.size(), 0);
}

// With Qt's own proxies of a well-known name this takes as long as the bus is stopped.
TEST_F(BusServiceTest, NeverWaitsForTheBus) {
    FakeService fake(name);
    daemon.pause();
    QElapsedTimer waited;
    waited.start();
    service.follow(bus);
    service.activate();
    BusSignals<OrgFreedesktopLogin1ManagerInterface> manager(path, bus, nullptr);
    int signalsHeard = 0;
    QObject::connect(&manager, &OrgFreedesktopLogin1ManagerInterface::PrepareForSleep, &service,
                     [&] { ++signalsHeard; });
    OrgFreedesktopDBusPropertiesInterface properties(fake.bus.baseService(), path, bus);
    bool answered = false;
    whenFinished(&service, properties.GetAll(managerInterface),
                 [&](const QDBusPendingReply<QVariantMap>& /*reply*/) { answered = true; });
    EXPECT_LT(waited.elapsed(), 2'000);
    daemon.resume();
    EXPECT_TRUE(becomesTrue([&] { return isOwnedBy(fake) && answered; }));
    fake.send(path, managerInterface, u"PrepareForSleep"_s, {true});
    EXPECT_TRUE(becomesTrue([&] { return signalsHeard == 1; }));
}

// Before any message has been read: this test runs in a process of its own.
TEST(BusSignalsTest, RegistersTheTypesOfItsSignals) {
    const QDBusConnection noBus{QString()};
    const BusSignals<OrgFreedesktopPortalSettingsInterface> settings(path, noBus, nullptr);
    EXPECT_TRUE(QMetaType::fromName("QDBusVariant").isValid());
}

} // namespace
} // namespace morrowleaf
