// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/businstance.h"

#include "tests/platform/privatebus.h"

#include <QDBusConnectionInterface>
#include <QThread>

#include <memory>
#include <optional>

namespace morrowleaf {
namespace {

const LaunchRequest plain{.action = u"show"_s, .activationToken = {}};

class BusInstanceTest : public testing::Test {
protected:
    BusInstanceTest() {
        QObject::connect(&first, &SingleInstance::requested, &first,
                         [this](const LaunchRequest& request) { requested = request; });
    }
    // A later launch, in a thread since it waits for the first one's answer.
    std::optional<bool> laterClaim(const LaunchRequest& request) {
        std::optional<bool> isTheOne;
        const std::unique_ptr<QThread> launch(
            QThread::create([&] { isTheOne = BusInstance().claim(request); }));
        launch->start();
        EXPECT_TRUE(becomesTrue([&] { return launch->isFinished(); }));
        launch->wait();
        return isTheOne;
    }

    PrivateBus daemon;
    BusInstance first;
    std::optional<LaunchRequest> requested;
};

TEST_F(BusInstanceTest, TheFirstIsTheOneAndALaterOneAsksItToShow) {
    EXPECT_TRUE(first.claim(plain));
    EXPECT_EQ(laterClaim(plain), false);
    ASSERT_TRUE(becomesTrue([this] { return requested.has_value(); }));
    EXPECT_EQ(requested->action, u"show"_s);
    EXPECT_EQ(requested->activationToken, QString());
}

TEST_F(BusInstanceTest, AnActionAndItsTokenArrive) {
    EXPECT_TRUE(first.claim(plain));
    EXPECT_EQ(laterClaim({.action = u"settings"_s, .activationToken = u"token-7"_s}), false);
    ASSERT_TRUE(becomesTrue([this] { return requested.has_value(); }));
    EXPECT_EQ(requested->action, u"settings"_s);
    EXPECT_EQ(requested->activationToken, u"token-7"_s);
}

TEST_F(BusInstanceTest, TakesTheNameAgainOnABusThatComesBack) {
    EXPECT_TRUE(first.claim(plain));
    daemon.stop();
    daemon.start();
    QDBusConnection observer = PrivateBus::connect();
    EXPECT_TRUE(becomesTrue(
        [&] { return observer.interface()->isServiceRegistered(u"org.morrowleaf.Morrowleaf"_s); }));
    EXPECT_EQ(laterClaim(plain), false);
}

TEST_F(BusInstanceTest, WithoutABusTheProgramRunsAnyway) {
    daemon.stop();
    EXPECT_TRUE(first.claim(plain));
}

} // namespace
} // namespace morrowleaf
