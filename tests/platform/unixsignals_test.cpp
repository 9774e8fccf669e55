// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/unixsignals.h"

#include "tests/platform/signalfromoutside.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>

#include <unistd.h>

namespace morrowleaf {
namespace {

TEST(UnixSignals, EachSignalOfAnEndAsksToQuit) {
    UnixSignals received;
    QSignalSpy requests(&received, &UnixSignals::quitRequested);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        requests.clear();
        signalFromOutside(signal);
        EXPECT_TRUE(requests.wait()) << signal;
        EXPECT_EQ(requests.size(), 1);
        ::alarm(0);
    }
}

TEST(UnixSignals, WhatALibraryRaisesEndsNothing) {
#if defined(Q_OS_MACOS)
    GTEST_SKIP() << "what the system says there of a raised signal has not been seen yet";
#endif
    UnixSignals received;
    QSignalSpy requests(&received, &UnixSignals::quitRequested);
    std::raise(SIGTERM);
    EXPECT_EQ(::alarm(0), 0U);
    signalFromOutside(SIGTERM);
    EXPECT_TRUE(requests.wait());
    EXPECT_EQ(requests.size(), 1);
    ::alarm(0);
}

TEST(UnixSignalsDeathTest, OneEndsAProgramWhoseMainThreadIsBlocked) {
    EXPECT_EXIT(
        {
            const UnixSignals received;
            signalFromOutside(SIGTERM);
            const unsigned left = ::alarm(0); // instead of waiting for it
            if (left > 0 && left <= 5) {
                std::raise(SIGALRM);
            }
            std::_Exit(1);
        },
        testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace morrowleaf
