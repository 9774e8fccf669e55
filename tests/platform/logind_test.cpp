// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/logind.h"

#include "tests/platform/fakelogind.h"

#include <memory>
#include <vector>

namespace morrowleaf {
namespace {

using Event = SessionGate::Event;
using Events = std::vector<Event>;
using Finds = FakeLogind::Finds;

class LogindTest : public testing::Test {
protected:
    LogindTest() {
        qunsetenv("XDG_SESSION_ID");
        QObject::connect(&gate, &SessionGate::delivered, &gate,
                         [this](Event event) { delivered.push_back(event); });
        QObject::connect(&gate, &SessionGate::leaving, &gate, [this] { ++leavings; });
    }

    // Everything that was sent before this has arrived when it returns.
    void sendMarker() {
        const int before = leavings;
        fake->prepareForSleep(true);
        EXPECT_TRUE(becomesTrue([&] { return leavings > before; }));
    }
    void makeFake(Finds finds, bool locked = false, bool active = true) {
        fake = std::make_unique<FakeLogind>(finds, locked, active);
        if (!logind) {
            logind = std::make_unique<Logind>(gate);
        }
        ASSERT_TRUE(becomesTrue([this] { return fake->hasListener(); }));
        sendMarker();
        leavings = 0;
    }

    PrivateBus daemon;
    SessionGate gate;
    Events delivered;
    int leavings = 0;
    std::unique_ptr<FakeLogind> fake;
    std::unique_ptr<Logind> logind;
};

TEST_F(LogindTest, SleepIsALeavingAndItsEndAWake) {
    makeFake(Finds::ByProcess);
    fake->prepareForSleep(true);
    EXPECT_TRUE(becomesTrue([this] { return leavings == 1; }));
    EXPECT_TRUE(delivered.empty());
    fake->prepareForSleep(false);
    EXPECT_TRUE(becomesTrue([this] { return delivered == Events{Event::Wake}; }));
}

TEST_F(LogindTest, FindsTheSessionThatTheEnvironmentNames) {
    qputenv("XDG_SESSION_ID", "7");
    makeFake(Finds::ById);
    fake->unlock();
    EXPECT_TRUE(becomesTrue([this] { return delivered == Events{Event::Unlocked}; }));
}

TEST_F(LogindTest, FindsTheSessionOfTheProcessWhereTheNamedOneIsUnknown) {
    qputenv("XDG_SESSION_ID", "unknown");
    makeFake(Finds::ByProcess);
    fake->unlock();
    EXPECT_TRUE(becomesTrue([this] { return delivered == Events{Event::Unlocked}; }));
}

TEST_F(LogindTest, FindsTheUsersGraphicalSessionWhereTheProcessIsInNone) {
    makeFake(Finds::ByUser);
    fake->unlock();
    EXPECT_TRUE(becomesTrue([this] { return delivered == Events{Event::Unlocked}; }));
}

TEST_F(LogindTest, AskingToLockTheSessionIsALeaving) {
    makeFake(Finds::ByProcess);
    fake->lock();
    EXPECT_TRUE(becomesTrue([this] { return leavings == 1; }));
    EXPECT_TRUE(delivered.empty());
}

TEST_F(LogindTest, WithoutASessionSleepIsStillNoticed) {
    makeFake(Finds::Nothing);
    fake->unlock();
    fake->prepareForSleep(false);
    sendMarker();
    EXPECT_EQ(delivered, Events{Event::Wake});
}

TEST_F(LogindTest, UnlockingTheOwnSessionIsReported) {
    makeFake(Finds::ByProcess);
    fake->unlock(u"/org/freedesktop/login1/session/_38"_s);
    fake->change({{u"LockedHint"_s, false}}, u"/org/freedesktop/login1/session/_38"_s);
    sendMarker();
    EXPECT_TRUE(delivered.empty());
    fake->unlock();
    EXPECT_TRUE(becomesTrue([this] { return delivered == Events{Event::Unlocked}; }));
}

TEST_F(LogindTest, ALockedSessionInhibitsUntilItIsUnlocked) {
    makeFake(Finds::ByProcess);
    fake->change({{u"LockedHint"_s, true}});
    EXPECT_TRUE(becomesTrue([this] { return leavings == 1; }));
    fake->prepareForSleep(false);
    sendMarker();
    EXPECT_TRUE(delivered.empty());
    fake->change({{u"LockedHint"_s, false}});
    EXPECT_TRUE(becomesTrue([this] { return delivered == Events{Event::Wake, Event::Unlocked}; }));
}

TEST_F(LogindTest, AnInactiveSessionInhibitsUntilItIsActive) {
    makeFake(Finds::ByProcess);
    fake->change({{u"Active"_s, false}});
    fake->prepareForSleep(false);
    sendMarker();
    EXPECT_TRUE(delivered.empty());
    fake->change({{u"Active"_s, true}});
    EXPECT_TRUE(becomesTrue([this] { return delivered == Events{Event::Wake, Event::Active}; }));
}

TEST_F(LogindTest, BothPropertiesInOneMessageDeliverNothingTooEarly) {
    makeFake(Finds::ByProcess, true, true);
    fake->change({{u"LockedHint"_s, false}, {u"Active"_s, false}});
    sendMarker();
    EXPECT_TRUE(delivered.empty());
    fake->change({{u"LockedHint"_s, true}, {u"Active"_s, true}});
    sendMarker();
    EXPECT_TRUE(delivered.empty());
    fake->change({{u"LockedHint"_s, false}});
    EXPECT_TRUE(becomesTrue([this] {
        return delivered == Events{Event::Active, Event::Unlocked};
    }));
}

TEST_F(LogindTest, TheStateAtTheStartInhibitsWithoutAnEvent) {
    makeFake(Finds::ByProcess, true, false);
    fake->prepareForSleep(false);
    fake->change({{u"LockedHint"_s, false}});
    sendMarker();
    EXPECT_TRUE(delivered.empty());
    fake->change({{u"Active"_s, true}});
    EXPECT_TRUE(becomesTrue([this] {
        return delivered == Events{Event::Wake, Event::Active, Event::Unlocked};
    }));
}

TEST_F(LogindTest, AManagerThatVanishesLiftsWhatItSaid) {
    makeFake(Finds::ByProcess, true, false);
    fake->prepareForSleep(false);
    sendMarker();
    EXPECT_TRUE(delivered.empty());
    fake.reset();
    EXPECT_TRUE(becomesTrue([this] { return delivered == Events{Event::Wake}; }));
}

TEST_F(LogindTest, AManagerThatComesBackIsHeardAgain) {
    makeFake(Finds::ByProcess);
    for (int times = 0; times < 2; ++times) {
        fake.reset();
        makeFake(Finds::ByProcess);
        delivered.clear();
        fake->unlock();
        EXPECT_TRUE(becomesTrue([this] { return delivered == Events{Event::Unlocked}; }));
    }
}

TEST_F(LogindTest, ABusThatComesBackIsHeardAgain) {
    makeFake(Finds::ByProcess);
    daemon.stop();
    fake.reset();
    daemon.start();
    makeFake(Finds::ByProcess);
    fake->prepareForSleep(false);
    EXPECT_TRUE(becomesTrue([this] { return delivered == Events{Event::Wake}; }));
}

TEST_F(LogindTest, WhatAnotherClientSendsIsIgnored) {
    makeFake(Finds::ByProcess);
    FakeService impostor({});
    impostor.send(FakeLogind::manager, u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s,
                  {false});
    impostor.send(FakeLogind::session, FakeLogind::sessionInterface, u"Unlock"_s);
    impostor.waitForBus();
    sendMarker();
    EXPECT_TRUE(delivered.empty());
}

} // namespace
} // namespace morrowleaf
