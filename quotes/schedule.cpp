// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "quotes/schedule.h"

#include "quotes/collection.h"

#include <cmath>

namespace morrowleaf {

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr qint64 sixHours = qint64{6} * 60 * 60;
constexpr qint64 twelveHours = 2 * sixHours;

Quote quoteNumber(qint64 number) {
    if (number < 0 || number >= quoteCount) {
        qFatal("There is no built-in quotation with the number %lld.",
               static_cast<long long>(number));
    }
    return quotes[static_cast<size_t>(number)];
}

qint64 wholeSeconds(double seconds) {
    // The comparison is false for NaN.
    if (!(seconds >= -0x1p63 && seconds < 0x1p63)) {
        qFatal("%g is not a representable number of seconds since 1970.", seconds);
    }
    return static_cast<qint64>(seconds);
}

Quote quoteOfSlot(const Moment& moment, qint64 slotSeconds) {
    return quoteNumber(wholeSeconds(moment.unixSeconds) / slotSeconds % quoteCount);
}

} // namespace

Quote quoteOfTheDay(const Moment& moment) {
    const qint64 number = moment.dayOrdinal() % quoteCount;
    return quoteNumber(number < 0 ? number + quoteCount : number);
}

Quote scheduledQuote(const Moment& moment, const QString& frequency, const RandomIndex& random) {
    if (frequency == "6h"_L1) {
        return quoteOfSlot(moment, sixHours);
    }
    if (frequency == "12h"_L1) {
        return quoteOfSlot(moment, twelveHours);
    }
    if (frequency == "every"_L1) {
        return quoteNumber(random(quoteCount));
    }
    return quoteOfTheDay(moment);
}

} // namespace morrowleaf
