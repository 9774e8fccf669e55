// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/stoptoken.h"

#include <gtest/gtest.h>

#include <thread>

namespace morrowleaf {
namespace {

using namespace std::chrono_literals;

TEST(StopToken, OfNobodyIsNeverRequested) {
    const StopToken token;
    EXPECT_FALSE(token.isRequested());
    EXPECT_FALSE(token.waitFor(1ms));
}

TEST(StopToken, ShowsTheRequestInEveryCopy) {
    StopSource source;
    const StopToken before = source.token();
    StopToken copy;
    copy = before;
    EXPECT_FALSE(copy.isRequested());
    source.request();
    source.request();
    EXPECT_TRUE(before.isRequested());
    EXPECT_TRUE(copy.isRequested());
    EXPECT_TRUE(source.token().isRequested());
}

TEST(StopToken, OutlivesItsSource) {
    StopToken token;
    {
        StopSource source;
        token = source.token();
        source.request();
    }
    EXPECT_TRUE(token.isRequested());
}

TEST(StopToken, EndsAWaitOnAnotherThread) {
    StopSource source;
    bool wasRequested = false;
    // Hangs if the request wakes nobody.
    std::thread waiting([&wasRequested, token = source.token()] {
        wasRequested = token.waitFor(std::chrono::hours(1));
    });
    source.request();
    waiting.join();
    EXPECT_TRUE(wasRequested);
}

} // namespace
} // namespace morrowleaf
