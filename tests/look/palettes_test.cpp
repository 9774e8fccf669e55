// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "look/palettes.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <limits>

using namespace morrowleaf;

namespace {

using namespace Qt::Literals::StringLiterals;

struct Expected {
    const char* name;
    const char* colors;
    const char* ink;
    bool light;
};

const Expected expected[] = {
    {"Midnight", "0b1026 141c3a 0b1026 1e2a5e 3b3e8c 16204a 0d1330 2a2f6b 0b1026", "edebff", false},
    {"Ember", "15100c 2b1a10 120d0a 50291a 8a4526 35180e 120d0a 6b3320 15100c", "ffeedd", false},
    {"Forest", "06120f 0b2320 06120f 123b33 1e6151 0e2e28 06120f 184a3e 081713", "e4fbf1", false},
    {"Plum", "1a0b1b 2e1030 140a16 4e1740 7b2e5c 33123a 140a16 5f1f4c 1a0b1b", "fde9f6", false},
    {"Slate", "0a0f14 122029 0a0f14 1b3a46 2e6070 14303a 0a0f14 224a58 0a0f14", "e8f4f8", false},
    {"Brass", "121004 241f0a 0f0d04 453a12 7a6420 2c260c 0f0d04 5c4c18 121004", "fbf3d9", false},
    {"Violet", "0e0a18 1b1230 0e0a18 2f1d5a 4f3391 22163f 0c0816 3c2670 0e0a18", "f0e9ff", false},
    {"Paper", "f6f1e8 efe8da f7f3eb f0eadd e3d7c3 efe8da f6f2ea ede5d5 f5f0e7", "262019", true},
    {"Noir", "050507 0b0b0f 050507 111117 1d1d26 0d0d12 050507 15151c 060608", "f1efea", false},
};

std::string hexOf(const QColor& color) {
    return color.name().mid(1).toStdString();
}

std::string colorsOf(const Palette& palette) {
    QStringList names;
    for (const QColor& color : palette.colors) {
        names.append(color.name().mid(1));
    }
    return names.join(u' ').toStdString();
}

Moment berlin(int year, int month, int day, int hour) {
    const QTimeZone zone("Europe/Berlin");
    return {static_cast<double>(
                QDateTime(QDate(year, month, day), QTime(hour, 0), zone).toSecsSinceEpoch()),
            zone};
}

TEST(Palettes, AreTheNineOfTheTable) {
    ASSERT_EQ(Palette::all().size(), std::size(expected));
    for (size_t i = 0; i < std::size(expected); ++i) {
        const Palette& palette = Palette::all()[i];
        EXPECT_EQ(palette.name.toStdString(), expected[i].name);
        EXPECT_EQ(colorsOf(palette), expected[i].colors) << expected[i].name;
        EXPECT_EQ(hexOf(palette.ink), expected[i].ink) << expected[i].name;
        EXPECT_EQ(palette.light, expected[i].light) << expected[i].name;
    }
}

TEST(Palettes, TheCentreStandsOut) {
    for (const Palette& palette : Palette::all()) {
        const int centre = qGray(palette.colors[4].rgb());
        for (const QColor& color : palette.colors) {
            if (palette.light) {
                EXPECT_GE(qGray(color.rgb()), centre) << palette.name.toStdString();
            } else {
                EXPECT_LE(qGray(color.rgb()), centre) << palette.name.toStdString();
            }
        }
    }
}

TEST(Palettes, ThePhotoPaletteIsOneDarkGround) {
    const Palette& photo = Palette::photo();
    EXPECT_EQ(photo.name, u"Photo"_s);
    for (const QColor& color : photo.colors) {
        EXPECT_EQ(hexOf(color), "0f0f13");
    }
    EXPECT_EQ(hexOf(photo.ink), "f4f2ee");
    EXPECT_FALSE(photo.light);
    EXPECT_EQ(&photo, &Palette::photo());
}

TEST(Palettes, HexUsesTwentyFourBits) {
    const QColor color = Palette::hex(0x102030);
    EXPECT_EQ(color, QColor(0x10, 0x20, 0x30));
    EXPECT_EQ(color.alpha(), 255);
    EXPECT_EQ(color.spec(), QColor::Rgb);
    EXPECT_EQ(Palette::hex(0xFF102030), color);
    EXPECT_EQ(Palette::hex(0x01102030), color);
    EXPECT_EQ(Palette::hex(0), QColor(0, 0, 0));
}

TEST(Palettes, OneForEachLocalDay) {
    EXPECT_EQ(&Palette::ofTheDay(berlin(2024, 5, 10, 0)),
              &Palette::ofTheDay(berlin(2024, 5, 10, 23)));
    const Palette* first = Palette::all().data();
    const auto row = [&](int day) { return &Palette::ofTheDay(berlin(2024, 3, day, 12)) - first; };
    for (int day = 20; day < 31; ++day) { // daylight saving time changes on the 31st
        EXPECT_EQ(row(day + 1), (row(day) + 1) % 9) << day;
    }
}

TEST(Palettes, AKnownDay) {
    const Moment epoch{0, QTimeZone::utc()};
    EXPECT_EQ(&Palette::ofTheDay(epoch), &Palette::all()[719163 % 9]);
}

TEST(Palettes, TheDayIsThatOfTheZone) {
    const double instant = 1700000000; // late in the evening, UTC
    const Palette* first = Palette::all().data();
    const auto utc = &Palette::ofTheDay({instant, QTimeZone::utc()}) - first;
    const auto tokyo = &Palette::ofTheDay({instant, QTimeZone("Asia/Tokyo")}) - first;
    EXPECT_EQ(tokyo, (utc + 1) % 9);
}

TEST(Palettes, WithoutADateItIsTheFirst) {
    const Moment never{std::numeric_limits<double>::quiet_NaN(), QTimeZone::utc()};
    EXPECT_EQ(Palette::ofTheDay(never).name, u"Midnight"_s);
}

TEST(Palettes, DaysBeforeYearOneHaveOneToo) {
    const double yearOne = -719162.0 * 86400;
    EXPECT_EQ(Palette::ofTheDay({yearOne, QTimeZone::utc()}).name, u"Ember"_s);
    EXPECT_EQ(Palette::ofTheDay({yearOne - 2 * 86400, QTimeZone::utc()}).name, u"Noir"_s);
}

TEST(Palettes, AChosenPaletteDoesNotChange) {
    const Moment moment = berlin(2024, 5, 10, 12);
    EXPECT_EQ(Palette::current(0, moment).name, u"Midnight"_s);
    EXPECT_EQ(Palette::current(7, moment).name, u"Paper"_s);
    EXPECT_EQ(Palette::current(8, moment).name, u"Noir"_s);
}

TEST(Palettes, AnyOtherChoiceIsThePaletteOfTheDay) {
    const Moment moment = berlin(2024, 5, 10, 12);
    for (const qint64 index :
         {qint64{-1}, qint64{9}, qint64{100}, qint64{-2}, std::numeric_limits<qint64>::min(),
          std::numeric_limits<qint64>::max(), qint64{1} << 32}) {
        EXPECT_EQ(&Palette::current(index, moment), &Palette::ofTheDay(moment)) << index;
    }
}

} // namespace
