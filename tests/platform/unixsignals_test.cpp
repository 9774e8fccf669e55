// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/unixsignals.h"

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
        std::raise(signal);
        EXPECT_TRUE(requests.wait()) << signal;
        EXPECT_EQ(requests.size(), 1);
        ::alarm(0);
    }
}

TEST(UnixSignalsDeathTest, OneEndsAProgramWhoseMainThreadIsBlocked) {
    EXPECT_EXIT(
        {
            const UnixSignals received;
            std::raise(SIGTERM);
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
