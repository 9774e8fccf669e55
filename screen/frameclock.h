// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

namespace morrowleaf {

// Seconds of a clock that never jumps, from any origin.
using Monotonic = std::function<double()>;
Monotonic steadySeconds();

// Asks for frames, and only when told: one timer that sleeps until the next
// instant at which something moves.
class FrameClock : public QObject {
    Q_OBJECT

public:
    explicit FrameClock(Monotonic monotonic, QObject* parent = nullptr);

    double now() const { return monotonic_(); }
    // One tick at that instant, or at once when it has passed; replaces an
    // earlier wish.
    void wakeAt(double instant);
    void sleep() { timer_.stop(); }
    bool awake() const { return timer_.isActive(); }

signals:
    void tick();

private:
    Monotonic monotonic_;
    QTimer timer_;
};

// The grid of instants at which a moving backdrop may be drawn anew.
qint64 backdropTick(double instant);
double nextBackdropTick(double instant);

} // namespace morrowleaf
