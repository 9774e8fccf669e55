// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/parallel.h"

#include <QSemaphore>
#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <atomic>

namespace morrowleaf {

void inParallel(int count, const std::function<void(int)>& work) {
    std::atomic<int> next = 0;
    const auto run = [&] {
        for (int i = next++; i < count; i = next++) {
            work(i);
        }
    };
    QSemaphore ended;
    const int wanted = std::min(count, QThread::idealThreadCount()) - 1;
    int helpers = 0;
    while (helpers < wanted && QThreadPool::globalInstance()->tryStart([&] {
        run();
        ended.release();
    })) {
        ++helpers;
    }
    run();
    ended.acquire(helpers);
}

} // namespace morrowleaf
