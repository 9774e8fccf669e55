// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/frameclock.h"

#include "backdrop/backdrop.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cmath>

namespace morrowleaf {

namespace {

constexpr double longestSleep = 3600; // seconds; waking too early does no harm
constexpr double gridSlack = 1e-6;

} // namespace

Monotonic steadySeconds() {
    QElapsedTimer timer;
    timer.start();
    return [timer] { return static_cast<double>(timer.nsecsElapsed()) * 1e-9; };
}

FrameClock::FrameClock(Monotonic monotonic, QObject* parent)
    : QObject(parent)
    , monotonic_(std::move(monotonic)) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &FrameClock::tick);
}

void FrameClock::wakeAt(double instant) {
    const double wait = std::clamp(instant - now(), 0.0, longestSleep);
    timer_.start(static_cast<int>(std::ceil(wait * 1000)));
}

qint64 backdropTick(double instant) {
    return static_cast<qint64>(std::floor((instant + gridSlack) / backdropInterval));
}

double nextBackdropTick(double instant) {
    return static_cast<double>(backdropTick(instant) + 1) * backdropInterval;
}

} // namespace morrowleaf
