// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/moment.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace morrowleaf;

namespace {

constexpr double daySeconds = 86400;

Moment at(const char* zone, const QDate& date, const QTime& time) {
    const QTimeZone timeZone(zone);
    EXPECT_TRUE(timeZone.isValid()) << zone;
    const QDateTime local(date, time, timeZone);
    return {static_cast<double>(local.toMSecsSinceEpoch()) / 1000, timeZone};
}

TEST(Moment, CountsDaysFromTheFirstOfYearOne) {
    EXPECT_EQ((Moment{0, QTimeZone::utc()}.dayOrdinal()), 719163);
    EXPECT_EQ((Moment{-1, QTimeZone::utc()}.dayOrdinal()), 719162);
    EXPECT_EQ((Moment{-719162 * daySeconds, QTimeZone::utc()}.dayOrdinal()), 1);
    EXPECT_EQ((Moment{-719162 * daySeconds - 1, QTimeZone::utc()}.dayOrdinal()), 0);
}

TEST(Moment, ReadsTheDayInItsOwnZone) {
    const double instant = 1700000000; // 22:13:20 UTC on 14 November 2023
    const qint64 utcDay = Moment{instant, QTimeZone::utc()}.dayOrdinal();
    EXPECT_EQ((Moment{instant, QTimeZone("Asia/Tokyo")}.dayOrdinal()), utcDay + 1);
    EXPECT_EQ((Moment{instant, QTimeZone("America/New_York")}.dayOrdinal()), utcDay);
    EXPECT_EQ((Moment{instant, QTimeZone("Pacific/Kiritimati")}.local().date()),
              QDate(2023, 11, 15));
}

TEST(Moment, TheDayChangesAtLocalMidnight) {
    const Moment midnight = at("Asia/Kolkata", QDate(2024, 2, 29), QTime(0, 0));
    const Moment before{midnight.unixSeconds - 0.001, midnight.zone};
    EXPECT_EQ(midnight.dayOrdinal(), before.dayOrdinal() + 1);
}

TEST(Moment, DaylightSavingDaysAreOneDayEach) {
    for (const QDate change : {QDate(2024, 3, 31), QDate(2024, 10, 27)}) {
        const Moment start = at("Europe/Berlin", change, QTime(0, 0));
        const Moment end = at("Europe/Berlin", change, QTime(23, 59, 59));
        const Moment next = at("Europe/Berlin", change.addDays(1), QTime(0, 0));
        EXPECT_NE(next.unixSeconds - start.unixSeconds, daySeconds);
        EXPECT_EQ(end.dayOrdinal(), start.dayOrdinal());
        EXPECT_EQ(next.dayOrdinal(), start.dayOrdinal() + 1);
    }
}

TEST(Moment, ADayWithoutMidnightBeginsLater) {
    // Clocks went from 24:00 on 3 November 2018 to 01:00 on the 4th.
    const QTimeZone zone("America/Sao_Paulo");
    const Moment first = at("America/Sao_Paulo", QDate(2018, 11, 4), QTime(1, 0));
    EXPECT_EQ(first.local().time(), QTime(1, 0));
    EXPECT_EQ((Moment{first.unixSeconds - 1, zone}.dayOrdinal()), first.dayOrdinal() - 1);
}

TEST(Moment, FractionsOfASecondFallInTheDayTheyBelongTo) {
    EXPECT_EQ((Moment{-0.0001, QTimeZone::utc()}.local().date()), QDate(1969, 12, 31));
    const double justBefore = std::nextafter(daySeconds, 0);
    EXPECT_EQ((Moment{justBefore, QTimeZone::utc()}.local().date()), QDate(1970, 1, 1));
    EXPECT_EQ((Moment{0.25, QTimeZone::utc()}.local().time()), QTime(0, 0, 0, 250));
}

TEST(Moment, AnInstantWithoutADateIsDayZero) {
    for (const double instant :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
          -std::numeric_limits<double>::infinity(), 1e300, -1e300, 9.3e15, -9.3e15}) {
        const Moment moment{instant, QTimeZone::utc()};
        EXPECT_FALSE(moment.local().isValid()) << instant;
        EXPECT_EQ(moment.dayOrdinal(), 0) << instant;
    }
}

TEST(Moment, WithoutAZoneItIsUtc) {
    const Moment moment{1700000000, {}};
    EXPECT_EQ(moment.local().time(), QTime(22, 13, 20));
}

TEST(Moment, NowIsBetweenTwoReadingsOfTheClock) {
    const auto before = static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000;
    const Moment now = Moment::now();
    const auto after = static_cast<double>(QDateTime::currentMSecsSinceEpoch() + 1) / 1000;
    EXPECT_GE(now.unixSeconds, before);
    EXPECT_LE(now.unixSeconds, after);
    EXPECT_EQ(now.zone, QTimeZone::systemTimeZone());
}

TEST(Moment, TheSystemClockGoesOnInTheSystemsZone) {
    const Clock clock = systemClock();
    const double before = Moment::now().unixSeconds;
    for (int i = 0; i < 3; ++i) {
        const Moment now = clock();
        EXPECT_GE(now.unixSeconds, before);
        EXPECT_LE(now.unixSeconds, Moment::now().unixSeconds);
        EXPECT_EQ(now.zone, QTimeZone::systemTimeZone());
    }
}

} // namespace
