// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/job.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QSemaphore>
#include <QThread>
#include <QThreadPool>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace morrowleaf {
namespace {

class JobTest : public ::testing::Test {
protected:
    JobTest() { pool.setMaxThreadCount(1); }
    void TearDown() override { goOn.release(100); }

    // Processes events until `over` returns true, for ten seconds at most.
    template <typename Over>
    static bool await(Over over) {
        QDeadlineTimer deadline(10'000);
        while (!over() && !deadline.hasExpired()) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        }
        return over();
    }
    // Delivers everything that workers have posted so far.
    void deliverAll() {
        pool.waitForDone();
        QCoreApplication::sendPostedEvents();
    }
    // Keeps the pool's only thread busy until goOn is released.
    void block() {
        pool.start([this] {
            begun.release();
            goOn.acquire();
        });
        begun.acquire();
    }

    QSemaphore begun;
    QSemaphore goOn;
    QThreadPool pool;
};

TEST_F(JobTest, DeliversLaterOnTheThreadThatStartedIt) {
    QThread* const here = QThread::currentThread();
    QThread* worker = here;
    std::optional<int> result;
    const Job job(
        pool,
        [&worker](const StopToken&) {
            worker = QThread::currentThread();
            return 42;
        },
        [&](int value) {
            EXPECT_EQ(QThread::currentThread(), here);
            result = value;
        });
    pool.waitForDone();
    EXPECT_FALSE(result);
    ASSERT_TRUE(await([&] { return result.has_value(); }));
    EXPECT_EQ(result, 42);
    EXPECT_NE(worker, here);
}

TEST_F(JobTest, DeliversToAnyThreadWithAnEventLoop) {
    std::thread other([this] {
        QEventLoop loop;
        int result = 0;
        const Job job(
            pool, [](const StopToken&) { return 1; },
            [&](int value) {
                result = value;
                loop.quit();
            });
        loop.exec();
        EXPECT_EQ(result, 1);
    });
    other.join();
}

TEST_F(JobTest, TheResultNeedNotBeCopyable) {
    std::unique_ptr<int> result;
    const Job job(
        pool, [](const StopToken&) { return std::make_unique<int>(7); },
        [&](std::unique_ptr<int> value) { result = std::move(value); });
    ASSERT_TRUE(await([&] { return result != nullptr; }));
    EXPECT_EQ(*result, 7);
}

TEST_F(JobTest, WorkThatHasNotBegunIsSkipped) {
    block();
    std::atomic<bool> ran = false;
    auto job = std::make_unique<Job>(
        pool, [&ran](const StopToken&) { return ran = true; }, [](bool) { FAIL(); });
    job.reset();
    goOn.release();
    deliverAll();
    EXPECT_FALSE(ran);
}

TEST_F(JobTest, DestructionStopsRunningWorkAndDoesNotWaitForIt) {
    std::atomic<bool> stopped = false;
    auto job = std::make_unique<Job>(
        pool,
        [this, &stopped](const StopToken& stop) {
            EXPECT_FALSE(stop.isRequested());
            begun.release();
            goOn.acquire();
            stopped = stop.isRequested();
            return 0;
        },
        [](int) { FAIL(); });
    begun.acquire();
    job.reset(); // without this the test would hang here
    goOn.release();
    deliverAll();
    EXPECT_TRUE(stopped);
}

TEST_F(JobTest, AResultThatIsOnItsWayIsDropped) {
    auto object = std::make_shared<int>(1);
    auto job = std::make_unique<Job>(
        pool, [object](const StopToken&) { return object; },
        [](const std::shared_ptr<int>&) { FAIL(); });
    pool.waitForDone();
    EXPECT_GT(object.use_count(), 1);
    job.reset();
    EXPECT_EQ(object.use_count(), 1);
    deliverAll();
}

TEST_F(JobTest, TheResultOfCancelledWorkIsFreed) {
    auto object = std::make_shared<int>(1);
    auto job = std::make_unique<Job>(
        pool,
        [this, object](const StopToken&) {
            begun.release();
            goOn.acquire();
            return object;
        },
        [](const std::shared_ptr<int>&) { FAIL(); });
    begun.acquire();
    job.reset();
    goOn.release();
    deliverAll();
    EXPECT_EQ(object.use_count(), 1);
}

TEST_F(JobTest, TheCallbackIsFreedAtOnceAndOnItsOwnThread) {
    QThread* freedBy = nullptr;
    const auto note = [&freedBy](const int* number) {
        freedBy = QThread::currentThread();
        delete number;
    };
    auto job = std::make_unique<Job>(
        pool,
        [this](const StopToken&) {
            begun.release();
            goOn.acquire();
            return 0;
        },
        [held = std::shared_ptr<const int>(new int(0), note)](int) { FAIL(); });
    begun.acquire();
    EXPECT_EQ(freedBy, nullptr);
    job.reset();
    EXPECT_EQ(freedBy, QThread::currentThread());
    goOn.release();
    deliverAll();
}

TEST_F(JobTest, WhatTheWorkHoldsIsFreedBeforeTheResultArrives) {
    auto object = std::make_shared<int>(1);
    bool delivered = false;
    const std::weak_ptr<int> watched = object;
    const Job job(
        pool, [object = std::move(object)](const StopToken&) { return *object; },
        [&](int) {
            EXPECT_TRUE(watched.expired());
            delivered = true;
        });
    EXPECT_TRUE(await([&] { return delivered; }));
}

TEST_F(JobTest, AnotherJobTakesThePlaceOfTheFirst) {
    QList<int> results;
    const auto give = [](int value) { return [value](const StopToken&) { return value; }; };
    const auto take = [&results](int value) { results.append(value); };
    Job job(pool, give(1), take);
    job = Job(pool, give(2), take);
    deliverAll();
    EXPECT_EQ(results, QList<int>{2});
    job = Job(pool, give(3), take);
    job = Job();
    deliverAll();
    EXPECT_EQ(results, QList<int>{2});
}

TEST_F(JobTest, KeepsRunningWhenItIsMoved) {
    int result = 0;
    Job first(
        pool, [](const StopToken&) { return 5; }, [&](int value) { result = value; });
    const Job second = std::move(first);
    deliverAll();
    EXPECT_EQ(result, 5);
}

TEST_F(JobTest, TheCallbackMayDestroyItsJob) {
    std::unique_ptr<Job> job;
    QList<int> results;
    job = std::make_unique<Job>(
        pool, [](const StopToken&) { return 1; },
        [&job, &results](int value) {
            job.reset();
            results.append(value);
        });
    ASSERT_TRUE(await([&] { return !results.isEmpty(); }));
    EXPECT_EQ(job, nullptr);
}

TEST_F(JobTest, TheCallbackMayStartTheNextJobInItsPlace) {
    Job job;
    QList<int> results;
    const std::function<void(int)> next = [&](int value) {
        results.append(value);
        if (value < 3) {
            job = Job(
                pool, [value](const StopToken&) { return value + 1; }, next);
        }
    };
    next(0);
    ASSERT_TRUE(await([&] { return results.size() == 4; }));
    EXPECT_EQ(results, QList<int>({0, 1, 2, 3}));
}

TEST_F(JobTest, ManyJobsComeAndGoWhileOthersRun) {
    pool.setMaxThreadCount(4);
    std::vector<Job> jobs(50);
    int delivered = 0;
    for (std::size_t i = 0; i < 20'000; ++i) {
        jobs[i * 7 % jobs.size()] = Job(
            pool, [i](const StopToken&) { return i; }, [&](std::size_t) { ++delivered; });
        if (i % 64 == 0) {
            QCoreApplication::processEvents();
        }
    }
    deliverAll();
    EXPECT_GE(delivered, 50);
    EXPECT_LE(delivered, 20'000);
}

} // namespace
} // namespace morrowleaf
