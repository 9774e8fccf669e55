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

    // To the millisecond below; invalid where no date can be given. Without a
    // valid zone, in UTC.
    QDateTime local() const;
    // Days since 31 December of 1 BC (1 January of year 1 is day 1) of the
    // local date, by the Gregorian count, negative before; 0 where there is no
    // such date.
    qint64 dayOrdinal() const;
};

// Where a component gets the present from; tests hand in a fixed one.
using Clock = std::function<Moment()>;

} // namespace morrowleaf
