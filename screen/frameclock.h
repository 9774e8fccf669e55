// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <optional>
#include <vector>

namespace morrowleaf {

class FrameTimer;

// Seconds of a clock that never jumps, from any origin.
using Monotonic = std::function<double()>;
Monotonic steadySeconds();

// The one clock of everything that moves on a screen. It divides its time into
// frames and calls all timers of a frame in the same turn of the event loop, so
// that one repaint serves them all. It sleeps until the next frame in which a
// timer is due. For the main thread.
class FrameClock : public QObject {
    Q_OBJECT

public:
    explicit FrameClock(Monotonic monotonic, QObject* parent = nullptr);

    double now() const { return monotonic_(); } // seconds
    // The rate of the display, in frames a second; 60 until it is known. A rate
    // outside 24...480 counts as 60.
    void setRate(double framesPerSecond);
    double frameInterval() const { return interval_; } // seconds

private:
    friend class FrameTimer;
    // The first frame after now that does not begin before `instant`.
    double frameFor(double instant) const;
    void schedule();
    void serve();

    Monotonic monotonic_;
    double interval_;
    QTimer timer_;
    double armedFor_ = 0;
    std::vector<FrameTimer*> timers_;
};

// Asks a clock for frames, one at a time.
class FrameTimer : public QObject {
    Q_OBJECT

public:
    explicit FrameTimer(FrameClock& clock, QObject* parent = nullptr);
    ~FrameTimer() override;

    // One tick in the first frame that does not begin before `instant`, by the
    // clock's seconds, and at the earliest in the next one; replaces an earlier
    // wish.
    void wakeAt(double instant);
    void sleep();
    bool awake() const { return due_.has_value(); }

signals:
    void tick();

private:
    friend class FrameClock;
    QPointer<FrameClock> clock_;
    std::optional<double> due_; // by the clock's seconds
};

// The grid of instants at which a moving backdrop may be drawn anew: the number
// of the latest one, and the next one. Seconds since the appearance.
qint64 backdropTick(double instant);
double nextBackdropTick(double instant);

} // namespace morrowleaf
