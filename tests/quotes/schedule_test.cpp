// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "quotes/schedule.h"

#include "quotes/collection.h"

#include <QSet>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <vector>

using namespace morrowleaf;

namespace {

using namespace Qt::Literals::StringLiterals;

qsizetype neverDrawn(qsizetype) {
    ADD_FAILURE() << "nothing should be drawn";
    return 0;
}

// The texts are distinct, so a text identifies its number.
qsizetype numberOf(const Quote& quote) {
    for (size_t number = 0; number < quotes.size(); ++number) {
        if (quotes[number].text == quote.text && quotes[number].author == quote.author) {
            return static_cast<qsizetype>(number);
        }
    }
    return -1;
}

qsizetype scheduled(const QString& frequency, double seconds,
                    const QTimeZone& zone = QTimeZone::utc()) {
    return numberOf(scheduledQuote({seconds, zone}, frequency, neverDrawn));
}

qsizetype ofTheDay(double seconds, const QTimeZone& zone = QTimeZone::utc()) {
    return numberOf(quoteOfTheDay({seconds, zone}));
}

TEST(Schedule, EverySixHoursGivesTheNextQuotation) {
    EXPECT_EQ(scheduled(u"6h"_s, 0), 0);
    EXPECT_EQ(scheduled(u"6h"_s, 21599), 0);
    EXPECT_EQ(scheduled(u"6h"_s, 21599.999), 0);
    EXPECT_EQ(scheduled(u"6h"_s, 21600), 1);
    EXPECT_EQ(scheduled(u"6h"_s, 123 * 21600.0), 123);
    EXPECT_EQ(scheduled(u"6h"_s, 124 * 21600.0 - 1), 123);
    EXPECT_EQ(scheduled(u"6h"_s, 124 * 21600.0), 0);
    EXPECT_EQ(scheduled(u"6h"_s, 1700000000), 1700000000 / 21600 % 124);
}

TEST(Schedule, EveryTwelveHoursGivesTheNextQuotation) {
    EXPECT_EQ(scheduled(u"12h"_s, 43199), 0);
    EXPECT_EQ(scheduled(u"12h"_s, 43200), 1);
    EXPECT_EQ(scheduled(u"12h"_s, 124 * 43200.0 - 1), 123);
    EXPECT_EQ(scheduled(u"12h"_s, 124 * 43200.0), 0);
}

TEST(Schedule, SlotsIgnoreTheZone) {
    for (const char* zone : {"Asia/Kolkata", "America/New_York", "Pacific/Kiritimati"}) {
        EXPECT_EQ(scheduled(u"6h"_s, 21599, QTimeZone(zone)), 0) << zone;
        EXPECT_EQ(scheduled(u"6h"_s, 21600, QTimeZone(zone)), 1) << zone;
        EXPECT_EQ(scheduled(u"12h"_s, 43200, QTimeZone(zone)), 1) << zone;
    }
}

TEST(Schedule, SecondsAndSlotsTruncateTowardZero) {
    EXPECT_EQ(scheduled(u"6h"_s, -0.5), 0);
    EXPECT_EQ(scheduled(u"6h"_s, -21599.9), 0);
    EXPECT_EQ(scheduled(u"12h"_s, -0.5), 0);
    EXPECT_EQ(scheduled(u"12h"_s, -21600), 0);
    EXPECT_EQ(scheduled(u"12h"_s, -43199), 0);
    // The remainder of a multiple of the collection's size is 0, not negative.
    EXPECT_EQ(scheduled(u"6h"_s, -124 * 21600.0), 0);
}

TEST(Schedule, TheLastRepresentableInstantStillHasASlot) {
    const double last = std::nextafter(0x1p63, 0);
    EXPECT_EQ(scheduled(u"6h"_s, last), static_cast<qint64>(last) / 21600 % 124);
}

TEST(Schedule, OneQuotationForEachLocalDay) {
    const QTimeZone tokyo("Asia/Tokyo");
    const auto local = [&](int hour, int minute) {
        return static_cast<double>(
            QDateTime(QDate(2024, 5, 10), QTime(hour, minute), tokyo).toSecsSinceEpoch());
    };
    const double morning = local(0, 0); // 15:00 UTC of the previous day
    const double night = local(23, 59);
    EXPECT_EQ(ofTheDay(morning, tokyo), ofTheDay(night, tokyo));
    EXPECT_NE(ofTheDay(morning), ofTheDay(night)) << "other days in UTC";
    EXPECT_EQ(ofTheDay(night + 60, tokyo), (ofTheDay(night, tokyo) + 1) % 124);
    EXPECT_EQ(ofTheDay(morning - 1, tokyo), (ofTheDay(morning, tokyo) + 123) % 124);
}

TEST(Schedule, WalksTheWholeCollectionADayAtATime) {
    const QTimeZone zone("Europe/London"); // 400 days contain both changes of the clocks
    const QDateTime noon(QDate(2023, 12, 20), QTime(12, 0), zone);
    qsizetype previous = -1;
    QSet<qsizetype> seen;
    for (int day = 0; day < 400; ++day) {
        const auto instant = static_cast<double>(noon.addDays(day).toSecsSinceEpoch());
        const qsizetype number = ofTheDay(instant, zone);
        if (previous >= 0) {
            EXPECT_EQ(number, (previous + 1) % 124);
        }
        seen.insert(number);
        previous = number;
    }
    EXPECT_EQ(seen.size(), 124);
}

TEST(Schedule, AKnownDay) {
    EXPECT_EQ(ofTheDay(0), 719163 % 124);
    EXPECT_EQ(ofTheDay(-1), 719162 % 124);
}

TEST(Schedule, TheWalkHasNoSeamBeforeYearOne) {
    const double yearOne = -719162.0 * 86400;
    EXPECT_EQ(ofTheDay(yearOne), 1);
    EXPECT_EQ(ofTheDay(yearOne - 86400), 0);
    EXPECT_EQ(ofTheDay(yearOne - 2 * 86400), 123);
}

TEST(Schedule, WithoutADateItIsTheFirst) {
    EXPECT_EQ(ofTheDay(std::numeric_limits<double>::quiet_NaN()), 0);
    EXPECT_EQ(ofTheDay(std::numeric_limits<double>::infinity()), 0);
    EXPECT_EQ(scheduled(u"24h"_s, -1e300), 0);
}

TEST(Schedule, AnyOtherFrequencyIsDaily) {
    const double instant = 1700000000;
    for (const QString& frequency : {u"24h"_s, QString(), u""_s, u"6H"_s, u"12H"_s, u" 6h"_s,
                                     u"6h "_s, u"Every"_s, u"weekly"_s}) {
        EXPECT_EQ(scheduled(frequency, instant), ofTheDay(instant)) << frequency.toStdString();
    }
}

TEST(Schedule, EveryShowingDrawsAmongAllQuotations) {
    std::vector<qsizetype> draws{123, 0, 0, 57};
    size_t next = 0;
    const RandomIndex random = [&](qsizetype count) {
        EXPECT_EQ(count, 124);
        return draws[next++];
    };
    for (const qsizetype expected : draws) {
        EXPECT_EQ(numberOf(scheduledQuote({-1e300, QTimeZone::utc()}, u"every"_s, random)),
                  expected);
    }
    EXPECT_EQ(next, draws.size());
}

TEST(Schedule, TheSecureSourceCoversEveryNumberEvenly) {
    const RandomIndex random = secureRandomIndex();
    constexpr int rounds = 200;
    std::array<int, quoteCount> hits{};
    for (int draw = 0; draw < rounds * quoteCount; ++draw) {
        const qsizetype number = random(quoteCount);
        ASSERT_GE(number, 0);
        ASSERT_LT(number, quoteCount);
        ++hits[static_cast<size_t>(number)];
    }
    for (const int count : hits) {
        // About eight standard deviations to either side.
        EXPECT_NEAR(count, rounds, 110);
    }
    EXPECT_EQ(random(1), 0);
}

TEST(ScheduleDeathTest, ASlotBefore1970IsFatal) {
    EXPECT_DEATH(scheduled(u"6h"_s, -21600), "no built-in quotation with the number -1");
    EXPECT_DEATH(scheduled(u"12h"_s, -43200), "no built-in quotation with the number -1");
    EXPECT_DEATH(scheduled(u"6h"_s, -1e9), "no built-in quotation");
}

TEST(ScheduleDeathTest, InstantsOutsideTheRangeAreFatalForSlots) {
    for (const QString& frequency : {u"6h"_s, u"12h"_s}) {
        for (const double instant :
             {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
              -std::numeric_limits<double>::infinity(), 0x1p63, std::nextafter(-0x1p63, -1e300),
              1e300}) {
            EXPECT_DEATH(scheduled(frequency, instant), "not a representable number of seconds");
        }
    }
}

} // namespace
