// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/stoptoken.h"

#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

class QThreadPool;

namespace morrowleaf {

// Work that runs on a thread of a pool, with its result delivered on the thread that
// started it:
//
//     copying_ = Job(workers, [path](const StopToken& stop) { return copy(path, stop); },
//                    [this](bool copied) { report(copied); });
//
// A Job belongs to the thread that made it, which needs an event loop. `done` is
// called there at most once, never from within the constructor, and may destroy or
// replace its own job.
//
// Destroying a job, or assigning another one to it, cancels it without waiting:
// `done` is never called and is freed at once. Work that has not begun is skipped;
// running work sees the request on its stop token, finishes in its own time, and its
// result is freed. So `work` may use only what it owns or what outlives the pool.
//
// The pool must outlive the work. The destructor of a pool waits for running work:
// where that may block forever, use a pool that can be abandoned. An exception that
// leaves `work` ends the program.
class Job {
public:
    Job(); // holds no work

    // `work` takes a const StopToken& and returns the result, which need
    // not be copyable; `done` takes the result.
    template <typename Work, typename Done>
    Job(QThreadPool& pool, Work work, Done done)
        : Job() {
        using Result = std::invoke_result_t<Work&, const StopToken&>;
        auto result = std::make_shared<std::optional<Result>>();
        start(
            pool,
            [work = std::move(work), result](const StopToken& stop) mutable {
                result->emplace(work(stop));
            },
            [done = std::move(done), result]() mutable { done(*std::move(*result)); });
    }

    ~Job();
    Job(Job&& other) noexcept;
    Job& operator=(Job&& other) noexcept;

private:
    struct Delivery;

    void start(QThreadPool& pool, std::function<void(const StopToken&)> work,
               std::function<void()> done);

    std::unique_ptr<Delivery> delivery_;
};

// Calls `work` once with each of 0...count - 1, in any order, on this thread and
// on free threads of Qt's global pool. Returns when all calls have returned.
void inParallel(int count, const std::function<void(int)>& work);

} // namespace morrowleaf
