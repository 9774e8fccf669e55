// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/timing.h"

#include "platform/system.h"

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace morrowleaf {

namespace {

constexpr int frameInterval = 16; // milliseconds
// The first frames of a new window may take long; they count as this much at most.
constexpr double longestFirstFrames = 0.05; // seconds
constexpr int firstFrames = 3;

class Animation final : public QTimer {
public:
    Animation(double seconds, std::function<void(double)> step, std::function<void()> done)
        : seconds_(seconds)
        , step_(std::move(step))
        , done_(std::move(done)) {
        setTimerType(Qt::PreciseTimer);
        setInterval(frameInterval);
        connect(this, &QTimer::timeout, this, [this] { advance(); });
        start();
    }

private:
    void advance() {
        double since = static_cast<double>(clock_.isValid() ? clock_.nsecsElapsed() : 0) / 1e9;
        clock_.start();
        if (frame_ < firstFrames) {
            ++frame_;
            since = std::min(since, longestFirstFrames);
        }
        elapsed_ += since;
        const double fraction = std::min(elapsed_ / seconds_, 1.0);
        if (fraction >= 1) {
            stop();
        }
        step_(fraction);
        if (!signalsBlocked() && fraction >= 1) {
            const auto done = std::move(done_);
            done();
        }
    }

    double seconds_;
    std::function<void(double)> step_;
    std::function<void()> done_;
    QElapsedTimer clock_;
    double elapsed_ = 0;
    int frame_ = 0;
};

template <typename T, typename... Arguments>
Task makeTask(Arguments&&... arguments) {
    return Task(new T(std::forward<Arguments>(arguments)...));
}

class SystemTiming final : public Timing {
public:
    double now() const override { return uptime(); }

    Task after(double seconds, std::function<void()> what) override {
        auto* timer = new QTimer;
        timer->setSingleShot(true);
        timer->setTimerType(Qt::PreciseTimer); // others may be early by a twentieth
        QObject::connect(timer, &QTimer::timeout, timer, std::move(what));
        constexpr double longest = 2e6; // what a timer's milliseconds can hold
        timer->start(static_cast<int>(std::lround(std::min(seconds, longest) * 1000)));
        return Task(timer);
    }

    Task animate(double seconds, std::function<void(double)> step,
                 std::function<void()> done) override {
        return makeTask<Animation>(seconds, std::move(step), std::move(done));
    }
};

} // namespace

void EndTask::operator()(QObject* task) const {
    // It may be running at this moment.
    task->blockSignals(true);
    task->deleteLater();
}

std::unique_ptr<Timing> makeSystemTiming() {
    return std::make_unique<SystemTiming>();
}

} // namespace morrowleaf
