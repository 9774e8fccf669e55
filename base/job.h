// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <type_traits>
#include <utility>

class QThreadPool;

namespace morrowleaf {

// Work that a thread of a pool does, with the result delivered to the thread
// that started it:
//
//     decoding_ = Job(workers, [path](const std::stop_token&) { return decode(path); },
//                     [this](const QImage& image) { show(image); });
//
// A Job belongs to the thread that made it, which needs an event loop. `done`
// is called there at most once, never from within the constructor, and may
// destroy or replace its own job.
//
// Destroying a job, or assigning another one to it, cancels it without waiting:
// `done` is not called any more and is freed at once; work that has not begun
// is skipped; work that runs sees its stop token set, ends when it likes, and
// its result is freed. So `work` may only use what it holds itself, or what
// lives as long as the pool.
//
// The pool must outlive the work. Its destructor waits for work that runs:
// where that may block for ever, use a pool that can be abandoned. An exception
// that leaves `work` ends the program.
class Job {
public:
    Job(); // no work

    // `work` takes a const std::stop_token& and returns the result, which need
    // not be copyable; `done` takes the result. Among queued work, higher
    // priorities run first.
    template <typename Work, typename Done>
    Job(QThreadPool& pool, Work work, Done done, int priority = 0)
        : Job() {
        using Result = std::invoke_result_t<Work&, const std::stop_token&>;
        auto result = std::make_shared<std::optional<Result>>();
        start(
            pool,
            [work = std::move(work), result](const std::stop_token& stop) mutable {
                result->emplace(work(stop));
            },
            [done = std::move(done), result]() mutable { done(*std::move(*result)); }, priority);
    }

    ~Job();
    Job(Job&& other) noexcept;
    Job& operator=(Job&& other) noexcept;

private:
    struct Delivery;

    void start(QThreadPool& pool, std::function<void(const std::stop_token&)> work,
               std::function<void()> done, int priority);

    std::unique_ptr<Delivery> delivery_;
};

} // namespace morrowleaf
