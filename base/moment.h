// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDate>
#include <QDateTime>
#include <QTimeZone>

#include <functional>

namespace morrowleaf {

// An instant together with the zone in which its local day and hour are read.
struct Moment {
    double unixSeconds = 0; // since 1970-01-01 00:00 UTC
    QTimeZone zone;

    // The current time in the system's zone.
    static Moment now();

    // The local date and time, rounded down to the millisecond; in UTC if `zone`
    // is invalid. Invalid for NaN and more than about 290 million years from 1970.
    QDateTime local() const;
    // The local date in days since 31 December of 1 BC (1 January of year 1 is
    // day 1) in the Gregorian calendar, negative before; 0 if local() is invalid.
    qint64 dayOrdinal() const;
};

// Returns the current moment. Tests pass a fixed one.
using Clock = std::function<Moment()>;
// A clock for frames: it asks the system for its zone, which takes several file
// accesses, only once in a while. Use each copy on one thread.
Clock systemClock();

} // namespace morrowleaf
