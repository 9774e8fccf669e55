// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/frameclock.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>

using namespace morrowleaf;

namespace {

class FrameClocks : public ::testing::Test {
protected:
    double time = 3.001; // seconds, by the clock
    FrameClock clock{[this] { return time; }};
};

} // namespace

TEST_F(FrameClocks, TicksAllTimersOfAFrameTogether) {
    FrameTimer one(clock);
    FrameTimer other(clock);
    int turn = 0;
    std::vector<int> turns;
    for (FrameTimer* timer : {&one, &other}) {
        QObject::connect(timer, &FrameTimer::tick, timer, [&] {
            turns.push_back(turn);
            QMetaObject::invokeMethod(
                &clock, [&] { ++turn; }, Qt::QueuedConnection);
        });
    }
    one.requestAt(time + 0.003);
    other.requestAt(time + 0.012);
    EXPECT_TRUE(QTest::qWaitFor([&] { return turns.size() == 2; }));
    EXPECT_EQ(turns.front(), turns.back());
    EXPECT_FALSE(one.isActive());
    EXPECT_FALSE(other.isActive());
}

TEST_F(FrameClocks, TicksInTheNextFrameAtTheEarliest) {
    FrameTimer timer(clock);
    const QSignalSpy ticks(&timer, &FrameTimer::tick);
    timer.requestAt(time - 100);
    EXPECT_TRUE(timer.isActive());
    EXPECT_EQ(ticks.count(), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks.count() == 1; }));
    EXPECT_FALSE(timer.isActive());
}

TEST_F(FrameClocks, ANewRequestReplacesTheLastAndSleepCancelsIt) {
    FrameTimer patient(clock);
    FrameTimer sleeping(clock);
    FrameTimer last(clock);
    const QSignalSpy late(&patient, &FrameTimer::tick);
    const QSignalSpy never(&sleeping, &FrameTimer::tick);
    const QSignalSpy done(&last, &FrameTimer::tick);
    patient.requestAt(time);
    patient.requestAt(time + 1000);
    sleeping.requestAt(time);
    sleeping.cancel();
    last.requestAt(time + 0.05);
    EXPECT_TRUE(QTest::qWaitFor([&] { return done.count() == 1; }));
    EXPECT_EQ(late.count(), 0);
    EXPECT_EQ(never.count(), 0);
    EXPECT_TRUE(patient.isActive());
    EXPECT_FALSE(sleeping.isActive());
}

TEST_F(FrameClocks, ATickMayDestroyTheOtherTimers) {
    auto one = std::make_unique<FrameTimer>(clock);
    auto other = std::make_unique<FrameTimer>(clock);
    int ticks = 0;
    QObject::connect(one.get(), &FrameTimer::tick, &clock, [&] {
        ++ticks;
        other.reset();
    });
    QObject::connect(other.get(), &FrameTimer::tick, &clock, [&] {
        ++ticks;
        one.reset();
    });
    FrameTimer last(clock);
    const QSignalSpy done(&last, &FrameTimer::tick);
    one->requestAt(time);
    other->requestAt(time);
    last.requestAt(time + 0.05);
    EXPECT_TRUE(QTest::qWaitFor([&] { return done.count() == 1; }));
    EXPECT_EQ(ticks, 1);
}

TEST_F(FrameClocks, ATimerMayOutliveItsClock) {
    auto shortLived = std::make_unique<FrameClock>([this] { return time; });
    FrameTimer timer(*shortLived);
    timer.requestAt(time);
    shortLived.reset();
    timer.requestAt(time);
    timer.cancel();
    EXPECT_FALSE(timer.isActive());
}

TEST_F(FrameClocks, ARateOutsideItsRangeCountsAs60) {
    clock.setRate(120);
    EXPECT_DOUBLE_EQ(clock.frameInterval(), 1 / 120.0);
    for (const double strange : {0.0, -1.0, 23.0, 481.0}) {
        clock.setRate(strange);
        EXPECT_DOUBLE_EQ(clock.frameInterval(), 1 / 60.0);
    }
}

TEST(BackdropTicks, AreMultiplesOfAThirtiethOfASecond) {
    EXPECT_EQ(backdropTick(0), 0);
    EXPECT_EQ(backdropTick(0.033), 0);
    EXPECT_EQ(backdropTick(1.0 / 30), 1);
    EXPECT_EQ(backdropTick(10), 300);
}
