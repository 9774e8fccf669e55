// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/sessiongate.h"

#include <gtest/gtest.h>

#include <vector>

namespace morrowleaf {
namespace {

using Event = SessionGate::Event;

class SessionGateTest : public testing::Test {
protected:
    std::vector<Event> announced;
    SessionGate gate{[this](Event e) { announced.push_back(e); }};
};

TEST_F(SessionGateTest, PassesWhatHappens) {
    gate.happened(Event::Wake);
    gate.happened(Event::Wake);
    gate.happened(Event::Active);
    EXPECT_EQ(announced, (std::vector{Event::Wake, Event::Wake, Event::Active}));
}

TEST_F(SessionGateTest, KeepsEachKindOnceWhileBarred) {
    gate.setBarred("locked", true);
    gate.happened(Event::Wake);
    gate.happened(Event::Wake);
    gate.happened(Event::Unlocked);
    EXPECT_TRUE(announced.empty());
    gate.setBarred("locked", false);
    EXPECT_EQ(announced, (std::vector{Event::Wake, Event::Unlocked}));
    gate.setBarred("locked", false);
    EXPECT_EQ(announced.size(), 2U);
}

TEST_F(SessionGateTest, OpensWhenTheLastBarIsLifted) {
    gate.setBarred("locked", true);
    gate.setBarred("locked", true);
    gate.setBarred("no screen", true);
    gate.happened(Event::Wake);
    gate.setBarred("locked", false);
    EXPECT_TRUE(announced.empty());
    gate.setBarred("no screen", false);
    EXPECT_EQ(announced, std::vector{Event::Wake});
}

TEST_F(SessionGateTest, NothingHappenedNothingIsAnnounced) {
    gate.setBarred("locked", true);
    gate.setBarred("locked", false);
    gate.setBarred("never set", false);
    EXPECT_TRUE(announced.empty());
}

TEST_F(SessionGateTest, TellsThatTheUserLeavesOncePerBar) {
    int told = 0;
    gate.onLeave = [&told] { ++told; };
    gate.setBarred("locked", true);
    gate.setBarred("locked", true);
    EXPECT_EQ(told, 1);
    gate.setBarred("locked", false);
    EXPECT_EQ(told, 1);
    gate.leaving();
    gate.setBarred("locked", true);
    EXPECT_EQ(told, 3);
}

} // namespace
} // namespace morrowleaf
