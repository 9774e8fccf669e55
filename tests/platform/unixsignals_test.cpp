// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/unixsignals.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

#include <csignal>

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
    }
}

} // namespace
} // namespace morrowleaf
