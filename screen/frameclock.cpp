// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/frameclock.h"

#include "backdrop/backdrop.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cmath>

namespace morrowleaf {

namespace {

constexpr double usualRate = 60;      // frames a second
constexpr double longestSleep = 3600; // seconds; waking too early does no harm
constexpr double gridSlack = 1e-6;    // for rounding errors, in frames or seconds

} // namespace

Monotonic steadySeconds() {
    QElapsedTimer timer;
    timer.start();
    return [timer] { return static_cast<double>(timer.nsecsElapsed()) * 1e-9; };
}

FrameClock::FrameClock(Monotonic monotonic, QObject* parent)
    : QObject(parent)
    , monotonic_(std::move(monotonic))
    , interval_(1 / usualRate) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &FrameClock::fireDueTimers);
}

void FrameClock::setRate(double framesPerSecond) {
    const bool plausible = framesPerSecond >= 24 && framesPerSecond <= 480;
    interval_ = 1 / (plausible ? framesPerSecond : usualRate);
}

double FrameClock::frameFor(double instant) const {
    const double next = std::floor(now() / interval_ + gridSlack) + 1;
    return std::max(std::ceil(instant / interval_ - gridSlack), next) * interval_;
}

void FrameClock::schedule() {
    std::optional<double> first;
    for (const FrameTimer* timer : timers_) {
        if (timer->due_) {
            first = first ? std::min(*first, *timer->due_) : *timer->due_;
        }
    }
    if (!first) {
        timer_.stop();
        return;
    }
    armedFor_ = *first;
    const double wait = std::clamp(*first - now(), 0.0, longestSleep);
    timer_.start(static_cast<int>(std::ceil(wait * 1000)));
}

void FrameClock::fireDueTimers() {
    const double reached = std::max(armedFor_, now()) + gridSlack * interval_;
    std::vector<QPointer<FrameTimer>> due;
    for (FrameTimer* timer : timers_) {
        if (timer->due_ && *timer->due_ <= reached) {
            timer->due_.reset();
            due.emplace_back(timer);
        }
    }
    for (const QPointer<FrameTimer>& timer : due) {
        if (timer) { // a tick may destroy another timer
            emit timer->tick();
        }
    }
    schedule();
}

FrameTimer::FrameTimer(FrameClock& clock, QObject* parent)
    : QObject(parent)
    , clock_(&clock) {
    clock.timers_.push_back(this);
}

FrameTimer::~FrameTimer() {
    if (clock_) {
        std::erase(clock_->timers_, this);
        clock_->schedule();
    }
}

void FrameTimer::requestAt(double instant) {
    if (clock_) {
        due_ = clock_->frameFor(instant);
        clock_->schedule();
    }
}

void FrameTimer::cancel() {
    due_.reset();
    if (clock_) {
        clock_->schedule();
    }
}

qint64 backdropTick(double instant) {
    return static_cast<qint64>(std::floor((instant + gridSlack) / backdropInterval));
}

} // namespace morrowleaf
