// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/curves.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace morrowleaf;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

TEST(Curves, EaseOutIsFastFirst) {
    EXPECT_NEAR(easeOut(0.5), 0.6846, 0.0001);
    EXPECT_NEAR(easeOut(0.25), 0.3783, 0.001);
}

TEST(Curves, EaseInIsTheMirrorOfEaseOut) {
    for (int tick = 0; tick * 0.05 <= 1; ++tick) {
        const double at = tick * 0.05;
        EXPECT_NEAR(easeIn(at), 1 - easeOut(1 - at), 1e-9);
    }
}

TEST(Curves, EaseInEaseOutIsSymmetric) {
    EXPECT_NEAR(easeInEaseOut(0.5), 0.5, 1e-9);
    EXPECT_NEAR(easeInEaseOut(0.25), 0.1292, 0.0005);
    for (int tick = 0; tick * 0.05 <= 1; ++tick) {
        const double at = tick * 0.05;
        EXPECT_NEAR(easeInEaseOut(at), 1 - easeInEaseOut(1 - at), 1e-9);
    }
}

TEST(Curves, StayInsideTheirEnds) {
    for (auto* curve : {easeOut, easeIn, easeInEaseOut}) {
        EXPECT_EQ(curve(-1), 0);
        EXPECT_EQ(curve(0), 0);
        EXPECT_EQ(curve(notANumber), 0);
        EXPECT_EQ(curve(1), 1);
        EXPECT_EQ(curve(infinity), 1);
        for (int tick = 0; tick * 0.01 < 1; ++tick) {
            const double at = tick * 0.01;
            EXPECT_LE(curve(at), curve(at + 0.01));
        }
    }
}

// Simulates the oscillator in small steps.
double simulatedSpring(double seconds, double response, double damping) {
    const double omega = 2 * M_PI / response;
    const double step = 1e-5;
    double position = 0;
    double velocity = 0;
    for (int tick = 0; tick * step < seconds; ++tick) {
        velocity += step * (omega * omega * (1 - position) - 2 * damping * omega * velocity);
        position += step * velocity;
    }
    return position;
}

TEST(Spring, FollowsTheOscillatorAtEveryDamping) {
    for (const double damping : {0.3, 0.72, 0.75, 1.0, 1.6}) {
        for (const double seconds : {0.05, 0.2, 0.5, 0.9, 1.5}) {
            EXPECT_NEAR(spring(seconds, 0.9, damping), simulatedSpring(seconds, 0.9, damping), 2e-3)
                << damping << " at " << seconds;
        }
    }
}

TEST(Spring, OvershootsBelowCriticalDampingOnly) {
    const auto highest = [](double damping) {
        double top = 0;
        for (int tick = 0; tick * 0.001 < 4; ++tick) {
            const double t = tick * 0.001;
            top = std::max(top, spring(t, 0.9, damping));
        }
        return top;
    };
    EXPECT_NEAR(highest(0.72), 1.038, 0.001);
    EXPECT_LE(highest(1), 1);
    EXPECT_LE(highest(2), 1);
}

TEST(Spring, BeginsAtRestAndEndsAtOne) {
    EXPECT_EQ(spring(0, 0.9, 0.72), 0);
    EXPECT_EQ(spring(-3, 0.9, 0.72), 0);
    EXPECT_EQ(spring(notANumber, 0.9, 0.72), 0);
    EXPECT_EQ(spring(infinity, 0.9, 0.72), 1);
}

TEST(Spring, StaysCloseOnceSettled) {
    for (const double damping : {0.4, 0.72, 1.0, 1.8}) {
        const double settled = springSettledAfter(0.9, damping, 0.001);
        for (int tick = 0; settled + tick * 0.01 < settled + 5; ++tick) {
            const double t = settled + tick * 0.01;
            EXPECT_NEAR(spring(t, 0.9, damping), 1, 0.001);
        }
        EXPECT_GT(settled, 0.3);
        EXPECT_LT(settled, 6);
    }
}

} // namespace
