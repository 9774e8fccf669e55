// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/job.h"

#include <QObject>
#include <QSemaphore>
#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <atomic>
#include <mutex>

namespace morrowleaf {

// The part of a job that stays on the thread that started it.
struct Job::Delivery {
    // The state that both threads share.
    struct Link {
        StopSource stop;
        std::mutex mutex;
        QObject* receiver = nullptr; // null once the job is gone
    };

    explicit Delivery(std::function<void()> whenDone)
        : done(std::move(whenDone)) {
        link->receiver = &receiver;
    }
    ~Delivery() {
        link->stop.request();
        // Destroying the receiver also discards a result that has been posted.
        const std::scoped_lock lock(link->mutex);
        link->receiver = nullptr;
    }
    Delivery(const Delivery&) = delete;
    Delivery& operator=(const Delivery&) = delete;

    std::function<void()> done;
    QObject receiver;
    std::shared_ptr<Link> link = std::make_shared<Link>();
};

Job::Job() = default;
Job::~Job() = default;
Job::Job(Job&& other) noexcept = default;
Job& Job::operator=(Job&& other) noexcept = default;

void Job::start(QThreadPool& pool, std::function<void(const StopToken&)> work,
                std::function<void()> done) {
    delivery_ = std::make_unique<Delivery>(std::move(done));
    const auto deliver = [delivery = delivery_.get()] {
        // `done` may destroy the job, and the delivery with it.
        const std::function<void()> call = std::move(delivery->done);
        call();
    };
    auto run = [link = delivery_->link, work = std::move(work), deliver]() mutable {
        const StopToken stop = link->stop.token();
        if (stop.isRequested()) {
            return;
        }
        work(stop);
        work = nullptr; // frees its captures before the result is delivered
        const std::scoped_lock lock(link->mutex);
        if (link->receiver) {
            QMetaObject::invokeMethod(link->receiver, deliver, Qt::QueuedConnection);
        }
    };
    pool.start(std::move(run));
}

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
