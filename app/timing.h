// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <functional>
#include <memory>

namespace morrowleaf {

struct EndTask {
    void operator()(QObject* task) const;
};
// Something that will happen; destroying it cancels, also from within.
using Task = std::unique_ptr<QObject, EndTask>;

// The main thread's time: what happens later, and what moves meanwhile.
class Timing {
public:
    virtual ~Timing() = default;
    Timing(const Timing&) = delete;
    Timing& operator=(const Timing&) = delete;

    // Seconds that have passed since some fixed moment, sleep included.
    virtual double now() const = 0;
    // Calls `what` once after `seconds`.
    virtual Task after(double seconds, std::function<void()> what) = 0;
    // Calls `step` at the display's pace with the elapsed fraction of
    // `seconds`, the last time with 1, then `done`. It begins with the first
    // frame, so that a slow start takes nothing from it.
    virtual Task animate(double seconds, std::function<void(double)> step,
                         std::function<void()> done) = 0;

protected:
    Timing() = default;
};

std::unique_ptr<Timing> makeSystemTiming();

} // namespace morrowleaf
