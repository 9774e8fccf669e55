// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/job.h"

#include <QSemaphore>
#include <QThreadPool>
#include <gtest/gtest.h>

#include <atomic>
#include <vector>

namespace morrowleaf {
namespace {

std::vector<int> countedCalls(int count) {
    std::vector<std::atomic<int>> calls(static_cast<std::size_t>(count));
    inParallel(count, [&](int i) { ++calls[static_cast<std::size_t>(i)]; });
    return {calls.begin(), calls.end()};
}

TEST(InParallel, CallsEachOnceAndWaitsForAll) {
    for (const int count : {1, 2, 3, 100}) {
        EXPECT_EQ(countedCalls(count), std::vector<int>(static_cast<std::size_t>(count), 1));
    }
}

TEST(InParallel, DoesNothingForACountOfZero) {
    inParallel(0, [](int) { FAIL(); });
}

TEST(InParallel, NeedsNoIdleWorker) {
    QThreadPool* pool = QThreadPool::globalInstance();
    QSemaphore over;
    int busy = 0;
    while (pool->tryStart([&over] { over.acquire(); })) {
        ++busy;
    }
    EXPECT_EQ(countedCalls(5), std::vector<int>(5, 1));
    over.release(busy);
    pool->waitForDone();
}

} // namespace
} // namespace morrowleaf
