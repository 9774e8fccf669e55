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

// Returns the seconds of a monotonic clock, which may count from any instant.
using Monotonic = std::function<double()>;
// A clock that counts from this call.
Monotonic steadySeconds();

// The clock of everything that moves on a screen. It divides time into frames and
// fires all timers of a frame in the same iteration of the event loop, so that
// one repaint serves them all. It sleeps until the next frame in which a timer is
// due. Use it on the main thread only.
class FrameClock : public QObject {
    Q_OBJECT

public:
    explicit FrameClock(Monotonic monotonic, QObject* parent = nullptr);

    double now() const { return monotonic_(); } // seconds
    // Sets the refresh rate of the display in frames a second. It is 60 until
    // then; a rate outside [24, 480] and NaN count as 60.
    void setRate(double framesPerSecond);
    double frameInterval() const { return interval_; } // seconds

private:
    friend class FrameTimer;
    // The start, in seconds of the clock, of the first frame after now that does
    // not begin before `instant`.
    double frameFor(double instant) const;
    void schedule();
    void fireDueTimers();

    Monotonic monotonic_;
    double interval_;
    QTimer timer_;
    double armedFor_ = 0;
    std::vector<FrameTimer*> timers_;
};

// Requests frames from a clock, one at a time. May outlive the clock.
class FrameTimer : public QObject {
    Q_OBJECT

public:
    explicit FrameTimer(FrameClock& clock, QObject* parent = nullptr);
    ~FrameTimer() override;

    // Requests one tick() in the first frame that does not begin before `instant` (seconds
    // of the clock), in the next frame at the earliest. Replaces an earlier request.
    void requestAt(double instant);
    // Cancels the request.
    void cancel();
    bool isActive() const { return due_.has_value(); }

signals:
    void tick();

private:
    friend class FrameClock;
    QPointer<FrameClock> clock_;
    std::optional<double> due_; // in seconds of the clock
};

// A moving backdrop changes at multiples of backdropInterval at the most: the number of
// the latest one at an instant in seconds since the appearance.
qint64 backdropTick(double instant);

} // namespace morrowleaf
