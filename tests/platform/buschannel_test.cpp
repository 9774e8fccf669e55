// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/buschannel.h"

#include "tests/platform/privatebus.h"

#include <QDBusConnectionInterface>
#include <QElapsedTimer>
#include <QSignalSpy>

#include <optional>

namespace morrowleaf {
namespace {

const QString programName = u"org.morrowleaf.Morrowleaf"_s;

class BusChannelTest : public testing::Test {
protected:
    BusChannelTest() {
        QObject::connect(&first, &RequestChannel::requested, &first,
                         [this](const LaunchRequest& request) { requested = request; });
    }
    static bool isNameTaken() {
        QDBusConnection observer = PrivateBus::connect();
        return becomesTrue([&] { return observer.interface()->isServiceRegistered(programName); });
    }
    bool reaches(RequestChannel& later) {
        QSignalSpy answers(&later, &RequestChannel::answered);
        later.reach();
        return becomesTrue([&] { return answers.size() == 1; });
    }

    PrivateBus daemon;
    BusChannel first{sessionLink()};
    std::optional<LaunchRequest> requested;
};

TEST_F(BusChannelTest, PassesAnActionAndItsToken) {
    first.serve();
    EXPECT_TRUE(isNameTaken());
    for (const QString& action : {u"show"_s, u"settings"_s}) {
        BusChannel later(sessionLink());
        ASSERT_TRUE(reaches(later));
        EXPECT_TRUE(later.send({.action = action, .activationToken = u"token-7"_s}));
        ASSERT_TRUE(becomesTrue([this] { return requested.has_value(); }));
        EXPECT_EQ(requested->action, action);
        EXPECT_EQ(requested->activationToken, u"token-7"_s);
        requested.reset();
    }
}

TEST_F(BusChannelTest, TakesTheNameAgainOnABusThatComesBack) {
    first.serve();
    EXPECT_TRUE(isNameTaken());
    daemon.stop();
    daemon.start();
    EXPECT_TRUE(isNameTaken());
    BusChannel later(sessionLink());
    EXPECT_TRUE(reaches(later));
}

TEST_F(BusChannelTest, TakesTheNameOnceAStoppedBusGoesOn) {
    daemon.pause();
    QElapsedTimer waited;
    waited.start();
    first.serve();
    BusChannel later(sessionLink());
    later.reach();
    EXPECT_FALSE(later.send({.action = u"show"_s, .activationToken = {}}));
    EXPECT_LT(waited.elapsed(), 2'000);
    daemon.resume();
    EXPECT_TRUE(isNameTaken());
}

} // namespace
} // namespace morrowleaf
