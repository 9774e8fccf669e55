// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/timing.h"

#include <QPointer>

#include <algorithm>
#include <vector>

namespace morrowleaf {

// Time that passes only when a test says so.
class FakeTiming final : public Timing {
public:
    double now() const override { return now_; }

    Task after(double seconds, std::function<void()> what) override {
        delays.push_back(seconds);
        return add({.token = nullptr,
                    .start = now_,
                    .seconds = seconds,
                    .step = {},
                    .done = std::move(what)});
    }

    Task animate(double seconds, std::function<void(double)> step,
                 std::function<void()> done) override {
        animations.push_back(seconds);
        return add({.token = nullptr,
                    .start = now_,
                    .seconds = seconds,
                    .step = std::move(step),
                    .done = std::move(done)});
    }

    // Lets time pass in steps of at most a hundredth of a second.
    void pass(double seconds) {
        const double end = now_ + seconds;
        while (now_ < end) {
            now_ = std::min(now_ + 0.01, end);
            tick();
        }
    }
    // Moves the clock without calling timers that are due.
    void jump(double seconds) { now_ += seconds; }

    qsizetype pending() {
        drop();
        return static_cast<qsizetype>(entries_.size());
    }

    std::vector<double> delays;
    std::vector<double> animations;

private:
    struct Entry {
        QPointer<QObject> token;
        double start;
        double seconds;
        std::function<void(double)> step;
        std::function<void()> done;
    };

    static bool isOver(const Entry& e) { return !e.token || e.token->signalsBlocked(); }

    Task add(Entry entry) {
        auto* token = new QObject;
        entry.token = token;
        entries_.push_back(std::move(entry));
        return Task(token);
    }
    void drop() { std::erase_if(entries_, isOver); }
    void tick() {
        const auto entries = entries_;
        for (const Entry& e : entries) {
            constexpr double rounding = 1e-9;
            const double fraction = std::min((now_ - e.start + rounding) / e.seconds, 1.0);
            if (e.step && !isOver(e)) {
                e.step(fraction);
            }
            if (fraction >= 1 && !isOver(e)) {
                e.token->blockSignals(true);
                e.done();
            }
        }
        drop();
    }

    double now_ = 1e6;
    std::vector<Entry> entries_;
};

} // namespace morrowleaf
