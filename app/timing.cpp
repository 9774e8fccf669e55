// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/timing.h"

#include "platform/system.h"
#include "screen/frameclock.h"

#include <QTimer>

#include <algorithm>
#include <cmath>
#include <optional>

namespace morrowleaf {

namespace {

// The first frames of a new window may take long; each counts as this much at most.
constexpr double longestFirstFrames = 0.05; // seconds
constexpr int firstFrames = 3;

class Animation final : public FrameTimer {
public:
    Animation(FrameClock& frames, double seconds, std::function<void(double)> step,
              std::function<void()> done)
        : FrameTimer(frames)
        , frames_(frames)
        , seconds_(seconds)
        , step_(std::move(step))
        , done_(std::move(done)) {
        connect(this, &FrameTimer::tick, this, [this] { advance(); });
        requestAt(frames_.now());
    }

private:
    void advance() {
        const double now = frames_.now();
        double since = last_ ? now - *last_ : 0;
        last_ = now;
        if (frame_ < firstFrames) {
            ++frame_;
            since = std::min(since, longestFirstFrames);
        }
        elapsed_ += since;
        const double fraction = std::min(elapsed_ / seconds_, 1.0);
        if (fraction < 1) {
            requestAt(now);
        }
        step_(fraction);
        if (!signalsBlocked() && fraction >= 1) {
            const auto done = std::move(done_);
            done();
        }
    }

    FrameClock& frames_;
    double seconds_;
    std::function<void(double)> step_;
    std::function<void()> done_;
    std::optional<double> last_; // of the clock, at the previous frame
    double elapsed_ = 0;
    int frame_ = 0;
};

class SystemTiming final : public Timing {
public:
    explicit SystemTiming(FrameClock& frames)
        : frames_(frames) {}

    double now() const override { return uptime(); }

    Task after(double seconds, std::function<void()> what) override {
        auto* timer = new QTimer;
        timer->setSingleShot(true);
        timer->setTimerType(Qt::PreciseTimer); // coarse timers may fire 5 % too early
        QObject::connect(timer, &QTimer::timeout, timer, std::move(what));
        constexpr double longest = 2e6; // seconds that a timer's milliseconds can hold
        timer->start(static_cast<int>(std::lround(std::min(seconds, longest) * 1000)));
        return Task(timer);
    }

    Task animate(double seconds, std::function<void(double)> step,
                 std::function<void()> done) override {
        return Task(new Animation(frames_, seconds, std::move(step), std::move(done)));
    }

private:
    FrameClock& frames_;
};

} // namespace

void CancelTask::operator()(QObject* task) const {
    // The task may be executing at this moment.
    task->blockSignals(true);
    task->deleteLater();
}

std::unique_ptr<Timing> makeSystemTiming(FrameClock& frames) {
    return std::make_unique<SystemTiming>(frames);
}

} // namespace morrowleaf
