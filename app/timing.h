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
// Something that will happen. Destroying it cancels it, even from within its
// own call.
using Task = std::unique_ptr<QObject, EndTask>;

class FrameClock;

// The time of the main thread, on which all calls are made: what happens later,
// and what moves meanwhile.
class Timing {
public:
    virtual ~Timing() = default;
    Timing(const Timing&) = delete;
    Timing& operator=(const Timing&) = delete;

    // Seconds since a fixed moment, including those asleep.
    virtual double now() const = 0;
    // Calls `what` once after `seconds`.
    virtual Task after(double seconds, std::function<void()> what) = 0;
    // Calls `step` in every frame with the elapsed fraction of `seconds`, the
    // last time with 1, then `done`. It begins with the first frame, so that a
    // slow start does not shorten it.
    virtual Task animate(double seconds, std::function<void(double)> step,
                         std::function<void()> done) = 0;

protected:
    Timing() = default;
};

// Animates with the frames of `frames`, which outlives it: what else moves with
// that clock is repainted together with the animation.
std::unique_ptr<Timing> makeSystemTiming(FrameClock& frames);

} // namespace morrowleaf
