// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/timing.h"

#include "screen/frameclock.h"

#include <QElapsedTimer>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace morrowleaf;

TEST(SystemTiming, CallsOnceAndNeverEarly) {
    FrameClock frames(steadySeconds());
    const auto timing = makeSystemTiming(frames);
    QElapsedTimer clock;
    clock.start();
    constexpr int count = 40;
    int calls = 0;
    std::vector<Task> tasks;
    for (int i = 0; i < count; ++i) {
        const double seconds = 0.2 + i * 0.0037;
        const double from = static_cast<double>(clock.nsecsElapsed()) / 1e9;
        tasks.push_back(timing->after(seconds, [&calls, &clock, from, seconds] {
            ++calls;
            // Timers count whole milliseconds.
            EXPECT_GE(static_cast<double>(clock.nsecsElapsed()) / 1e9 - from, seconds - 0.001);
        }));
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return calls == count; }, 20'000));
    QTest::qWait(10);
    EXPECT_EQ(calls, count);
}

TEST(SystemTiming, WhatIsCancelledIsNeverCalled) {
    FrameClock frames(steadySeconds());
    const auto timing = makeSystemTiming(frames);
    int calls = 0;
    Task task = timing->after(0.01, [&calls] { ++calls; });
    const Task later = timing->after(0.05, [&calls] { calls += 10; });
    task.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return calls > 0; }, 20'000));
    EXPECT_EQ(calls, 10);
}

TEST(SystemTiming, AnAnimationEndsWithItsWholeFractionOnce) {
    FrameClock frames(steadySeconds());
    const auto timing = makeSystemTiming(frames);
    std::vector<double> fractions;
    int ends = 0;
    const Task task = timing->animate(
        0.1, [&](double fraction) { fractions.push_back(fraction); }, [&] { ++ends; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return ends > 0; }, 20'000));
    QTest::qWait(40);
    EXPECT_EQ(ends, 1);
    ASSERT_FALSE(fractions.empty());
    EXPECT_EQ(fractions.front(), 0);
    EXPECT_EQ(fractions.back(), 1);
    EXPECT_TRUE(std::is_sorted(fractions.begin(), fractions.end()));
}

TEST(SystemTiming, AnAnimationSharesItsFramesWithWhatElseMoves) {
    FrameClock frames(steadySeconds());
    const auto timing = makeSystemTiming(frames);
    FrameTimer picture(frames);
    // Each step must follow a tick of the picture in the same turn of the event loop.
    int apart = 0;
    int turns = 0;
    int turnOfTick = -1;
    QObject::connect(&picture, &FrameTimer::tick, &picture, [&] {
        picture.requestAt(frames.now());
        turnOfTick = turns;
        QMetaObject::invokeMethod(
            &picture, [&] { ++turns; }, Qt::QueuedConnection);
    });
    picture.requestAt(frames.now());
    int ends = 0;
    int steps = 0;
    const Task task = timing->animate(
        0.2,
        [&](double) {
            ++steps;
            apart += turnOfTick == turns ? 0 : 1;
        },
        [&] { ++ends; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return ends > 0; }, 20'000));
    EXPECT_GT(steps, 2);
    EXPECT_EQ(apart, 0);
}
