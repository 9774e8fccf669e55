// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/buschannel.h"

#include "tests/platform/carryout.h"
#include "tests/platform/privatebus.h"

#include <QDBusConnectionInterface>
#include <QElapsedTimer>
#include <QSignalSpy>

#include <memory>
#include <optional>
#include <utility>

namespace morrowleaf {
namespace {

const QString programName = u"org.morrowleaf.Morrowleaf"_s;

class BusChannelTest : public testing::Test {
protected:
    BusChannelTest() {
        QObject::connect(&first, &RequestListener::requested, &first,
                         [this](const LaunchRequest& request) { requested = request; });
    }
    static bool isNameTaken() {
        QDBusConnection observer = PrivateBus::connect();
        return becomesTrue([&] { return observer.interface()->isServiceRegistered(programName); });
    }
    bool reaches(BusSender& later) {
        QSignalSpy answers(&later, &RequestSender::answered);
        later.reach();
        return becomesTrue([&] { return answers.size() == 1; });
    }

    PrivateBus daemon;
    BusListener first{sessionLink()};
    std::optional<LaunchRequest> requested;
};

TEST_F(BusChannelTest, PassesAnActionAndItsToken) {
    first.listen();
    EXPECT_TRUE(isNameTaken());
    for (const QString& action : {u"show"_s, u"settings"_s}) {
        BusSender later;
        ASSERT_TRUE(reaches(later));
        QSignalSpy acceptances(&later, &RequestSender::accepted);
        EXPECT_TRUE(later.send({.action = action, .activationToken = u"token-7"_s}));
        ASSERT_TRUE(becomesTrue([&] { return acceptances.size() == 1; }));
        ASSERT_TRUE(requested.has_value());
        EXPECT_EQ(requested->action, action);
        EXPECT_EQ(requested->activationToken, u"token-7"_s);
        requested.reset();
    }
}

// If it ends before, the next instance gets it.
TEST_F(BusChannelTest, AcceptsARequestAfterItHasBeenCarriedOut) {
    auto ending = std::make_unique<BusListener>(sessionLink());
    ending->listen();
    BusSender later;
    ASSERT_TRUE(reaches(later));
    QSignalSpy acceptances(&later, &RequestSender::accepted);
    QSignalSpy failures(&later, &RequestSender::failed);
    EXPECT_TRUE(later.send({.action = u"show"_s, .activationToken = {}}));
    endOnceCarriedOut(std::move(ending));
    EXPECT_TRUE(becomesTrue([&] { return !failures.isEmpty(); }));
    EXPECT_EQ(acceptances.size(), 0);
}

TEST_F(BusChannelTest, TakesTheNameAgainOnABusThatComesBack) {
    first.listen();
    EXPECT_TRUE(isNameTaken());
    daemon.stop();
    daemon.start();
    EXPECT_TRUE(isNameTaken());
    BusSender later;
    EXPECT_TRUE(reaches(later));
}

TEST_F(BusChannelTest, TakesTheNameOnceAStoppedBusGoesOn) {
    daemon.pause();
    QElapsedTimer waited;
    waited.start();
    first.listen();
    BusSender later;
    later.reach();
    EXPECT_FALSE(later.send({.action = u"show"_s, .activationToken = {}}));
    EXPECT_LT(waited.elapsed(), 20'000) << "libdbus waits for 25 seconds";
    daemon.resume();
    EXPECT_TRUE(isNameTaken());
}

TEST_F(BusChannelTest, FindsAnInstanceThatTakesTheNameLater) {
    BusSender later;
    QSignalSpy answers(&later, &RequestSender::answered);
    later.reach();
    EXPECT_TRUE(becomesTrue([] { return !BusLink::isAnyConnecting(); }));
    QSignalSpy names(&first, &RequestListener::reachable);
    first.listen();
    EXPECT_TRUE(becomesTrue([&] { return answers.size() == 1 && names.size() == 1; }));
}

} // namespace
} // namespace morrowleaf
