// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/moment.h"

#include <algorithm>
#include <cmath>
#include <ctime>
#include <tuple>

namespace morrowleaf {

namespace {

// The Julian day of 31 December of 1 BC, in the Gregorian calendar.
constexpr qint64 julianDaysBeforeYearOne = 1721425;

// About 290 million years; beyond, the milliseconds do not fit into 64 bits.
constexpr double lastSecond = 9.2e15;

constexpr double zoneKept = 1; // seconds

double unixNow() {
    // A count of nanoseconds, as the clocks of std::chrono have it, ends in 2262.
    std::timespec time{};
    std::ignore = std::timespec_get(&time, TIME_UTC);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

} // namespace

Moment Moment::now() {
    return {unixNow(), QTimeZone::systemTimeZone()};
}

Clock systemClock() {
    return [zone = QTimeZone(), askedAt = 0.0]() mutable -> Moment {
        const double now = unixNow();
        if (!zone.isValid() || std::abs(now - askedAt) >= zoneKept) {
            zone = QTimeZone::systemTimeZone();
            askedAt = now;
        }
        return {now, zone};
    };
}

QDateTime Moment::local() const {
    if (!(std::abs(unixSeconds) <= lastSecond)) {
        return {};
    }
    const double wholeSeconds = std::floor(unixSeconds);
    const auto milliseconds =
        std::min<qint64>(static_cast<qint64>((unixSeconds - wholeSeconds) * 1000), 999);
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(wholeSeconds) * 1000 + milliseconds,
                                          zone.isValid() ? zone : QTimeZone::utc());
}

qint64 Moment::dayOrdinal() const {
    const QDate date = local().date();
    return date.isValid() ? date.toJulianDay() - julianDaysBeforeYearOne : 0;
}

} // namespace morrowleaf
