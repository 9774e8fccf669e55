// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/moment.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace morrowleaf {

namespace {

// The Julian day of 31 December of 1 BC, in the Gregorian calendar.
constexpr qint64 julianDaysBeforeYearOne = 1721425;

// About 290 million years; beyond, the milliseconds do not fit into 64 bits.
constexpr double lastSecond = 9.2e15;

} // namespace

Moment Moment::now() {
    const std::chrono::duration<double> sinceEpoch =
        std::chrono::system_clock::now().time_since_epoch();
    return {sinceEpoch.count(), QTimeZone::systemTimeZone()};
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
