// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <functional>
#include <memory>

namespace morrowleaf {

struct CancelTask {
    void operator()(QObject* task) const;
};
// A pending call or a running animation. Destroying it cancels it, even from within one
// of its own calls.
using Task = std::unique_ptr<QObject, CancelTask>;

class FrameClock;

// Time on the main thread: delayed calls and animations. All calls are made there.
class Timing {
public:
    virtual ~Timing() = default;
    Timing(const Timing&) = delete;
    Timing& operator=(const Timing&) = delete;

    // Seconds since a fixed moment, including those that the machine has slept.
    virtual double now() const = 0;
    // Calls `what` once after `seconds`.
    virtual Task after(double seconds, std::function<void()> what) = 0;
    // Calls `step` in every frame with the elapsed fraction of `seconds`, at last with 1,
    // and then `done`. The time starts with the first frame, so that a slow start does not
    // shorten the animation.
    virtual Task animate(double seconds, std::function<void(double)> step,
                         std::function<void()> done) = 0;

protected:
    Timing() = default;
};

// Animates on the frames of `frames`, which must outlive the result; whatever else uses
// that clock is repainted in the same frame.
std::unique_ptr<Timing> makeSystemTiming(FrameClock& frames);

} // namespace morrowleaf
