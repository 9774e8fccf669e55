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

    static Moment now();

    // Rounded down to the millisecond, and in UTC without a valid zone. Invalid
    // for NaN and beyond some 290 million years.
    QDateTime local() const;
    // The local date in days since 31 December of 1 BC (1 January of year 1 is
    // day 1) in the Gregorian calendar, negative before; 0 if local() is invalid.
    qint64 dayOrdinal() const;
};

// Gives the present. Tests pass a fixed one.
using Clock = std::function<Moment()>;

} // namespace morrowleaf
