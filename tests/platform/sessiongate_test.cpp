// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/sessiongate.h"

#include <gtest/gtest.h>

#include <vector>

namespace morrowleaf {
namespace {

using namespace Qt::Literals::StringLiterals;
using Event = SessionGate::Event;

class SessionGateTest : public testing::Test {
protected:
    SessionGateTest() {
        QObject::connect(&gate, &SessionGate::delivered, &gate,
                         [this](Event event) { delivered.push_back(event); });
        QObject::connect(&gate, &SessionGate::leaving, &gate, [this] { ++leavings; });
    }

    SessionGate gate;
    std::vector<Event> delivered;
    int leavings = 0;
};

TEST_F(SessionGateTest, DeliversAtOnceWithoutAnInhibitor) {
    gate.report(Event::Wake);
    gate.report(Event::Wake);
    gate.report(Event::Active);
    EXPECT_EQ(delivered, (std::vector{Event::Wake, Event::Wake, Event::Active}));
}

TEST_F(SessionGateTest, QueuesEachKindOnceWhileInhibited) {
    gate.setInhibited(u"locked"_s, true);
    gate.report(Event::Wake);
    gate.report(Event::Wake);
    gate.report(Event::Unlocked);
    EXPECT_TRUE(delivered.empty());
    gate.setInhibited(u"locked"_s, false);
    EXPECT_EQ(delivered, (std::vector{Event::Wake, Event::Unlocked}));
    gate.setInhibited(u"locked"_s, false);
    EXPECT_EQ(delivered.size(), 2U);
}

TEST_F(SessionGateTest, DeliversWhenTheLastInhibitorEnds) {
    gate.setInhibited(u"locked"_s, true);
    gate.setInhibited(u"locked"_s, true);
    gate.setInhibited(u"no screen"_s, true);
    gate.report(Event::Wake);
    gate.setInhibited(u"locked"_s, false);
    EXPECT_TRUE(delivered.empty());
    gate.setInhibited(u"no screen"_s, false);
    EXPECT_EQ(delivered, std::vector{Event::Wake});
}

TEST_F(SessionGateTest, DeliversNothingWhereNothingWasReported) {
    gate.setInhibited(u"locked"_s, true);
    gate.setInhibited(u"locked"_s, false);
    gate.setInhibited(u"never active"_s, false);
    EXPECT_TRUE(delivered.empty());
}

TEST_F(SessionGateTest, TellsOncePerInhibitorThatTheUserLeaves) {
    gate.setInhibited(u"locked"_s, true);
    gate.setInhibited(u"locked"_s, true);
    EXPECT_EQ(leavings, 1);
    gate.setInhibited(u"locked"_s, false);
    EXPECT_EQ(leavings, 1);
    gate.reportLeaving();
    gate.setInhibited(u"locked"_s, true);
    EXPECT_EQ(leavings, 3);
}

} // namespace
} // namespace morrowleaf
