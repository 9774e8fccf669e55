// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/viewsettings.h"

#include "screen/greeting.h"
#include "settings/prefs.h"
#include "settings/settingsstore.h"
#include "settings/settingstable.h"

#include <QJsonArray>
#include <gtest/gtest.h>

#include <cmath>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

Moment at(int hour, int minute, const QDate& date = {2025, 11, 14}) {
    const QDateTime time(date, QTime(hour, minute), Qt::UTC);
    return {static_cast<double>(time.toSecsSinceEpoch()), QTimeZone::utc()};
}

} // namespace

TEST(ViewSettings, HasItsOwnFallbacksWithoutRegisteredDefaults) {
    const SettingsStore store;
    EXPECT_EQ(readViewSettings(store), ViewSettings());
    EXPECT_EQ(readViewSettings(store).fontName, u"serif"_s);
    EXPECT_EQ(readViewSettings(store).paletteIndex, -1);
}

TEST(ViewSettings, ReadsTheRegisteredDefaults) {
    SettingsStore store;
    registerAppDefaults(store);
    ViewSettings expected;
    expected.fontName = u"fraunces"_s;
    EXPECT_EQ(readViewSettings(store), expected);
}

TEST(ViewSettings, ReadsStoredValues) {
    SettingsStore store;
    store.set(K::palette, 7);
    store.set(K::textScale.key, u"1.5"_s);
    store.set(K::textAnim, u"Handwrite"_s);
    store.set(K::grain, false);
    store.set(K::transparency, 0.3);
    store.set(K::font.key, 12); // not a string
    const ViewSettings settings = readViewSettings(store);
    EXPECT_EQ(settings.paletteIndex, 7);
    EXPECT_EQ(settings.sizeScale, 1.5);
    EXPECT_EQ(settings.textAnimRaw, u"Handwrite"_s);
    EXPECT_FALSE(settings.grainOn);
    EXPECT_EQ(settings.transparency, 0.3);
    EXPECT_EQ(settings.fontName, u"serif"_s);
    store.set(K::palette.key, QJsonArray{1});
    EXPECT_EQ(readViewSettings(store).paletteIndex, 0); // stored, but not a number
}

TEST(ViewSettings, ToleratesAnySizeScale) {
    EXPECT_EQ(usableSizeScale(1.37), 1.37);
    EXPECT_EQ(usableSizeScale(0), 1);
    EXPECT_EQ(usableSizeScale(-3), 1);
    EXPECT_EQ(usableSizeScale(std::nan("")), 1);
    EXPECT_EQ(usableSizeScale(INFINITY), 1);
    EXPECT_EQ(usableSizeScale(1e9), 16);
    EXPECT_EQ(usableSizeScale(1e-9), 0.1);
}

TEST(ViewPalette, IsThatForPhotosIfOneIsReadable) {
    ViewSettings settings;
    settings.paletteIndex = 7;
    EXPECT_EQ(viewPalette(settings, true, at(9, 0)).name, u"Photo"_s);
    EXPECT_EQ(viewPalette(settings, false, at(9, 0)).name, u"Paper"_s);
    settings.paletteIndex = 9;
    EXPECT_EQ(viewPalette(settings, false, at(9, 0)).name, Palette::ofTheDay(at(9, 0)).name);
}

TEST(Greeting, FollowsTheHour) {
    EXPECT_EQ(greeting(at(4, 59)), u"Still awake"_s);
    EXPECT_EQ(greeting(at(5, 0)), u"Good morning"_s);
    EXPECT_EQ(greeting(at(11, 59)), u"Good morning"_s);
    EXPECT_EQ(greeting(at(12, 0)), u"Good afternoon"_s);
    EXPECT_EQ(greeting(at(16, 59)), u"Good afternoon"_s);
    EXPECT_EQ(greeting(at(17, 0)), u"Good evening"_s);
    EXPECT_EQ(greeting(at(21, 59)), u"Good evening"_s);
    EXPECT_EQ(greeting(at(22, 0)), u"Still awake"_s);
    EXPECT_EQ(greeting(at(0, 0)), u"Still awake"_s);
}

TEST(Greeting, UsesTheLocalHour) {
    Moment moment = at(23, 30);
    moment.zone = QTimeZone("Asia/Tokyo");
    EXPECT_EQ(greeting(moment), u"Good morning"_s);
    EXPECT_EQ(today(moment, QLocale(u"en_US"_s)), u"SATURDAY, 15 NOVEMBER"_s);
}

TEST(Today, FollowsTheLocale) {
    EXPECT_EQ(today(at(9, 0), QLocale(u"en_US"_s)), u"FRIDAY, 14 NOVEMBER"_s);
    EXPECT_EQ(today(at(9, 0, {2025, 11, 4}), QLocale::c()), u"TUESDAY, 4 NOVEMBER"_s);
    EXPECT_EQ(today(at(9, 0), QLocale(u"de_DE"_s)), u"FREITAG, 14 NOVEMBER"_s);
    // The upper case follows the locale as well.
    EXPECT_EQ(today(at(9, 0, {2025, 6, 2}), QLocale(u"tr_TR"_s)), u"PAZARTESİ, 2 HAZİRAN"_s);
}

TEST(Hint, SaysHowToEndTheShowing) {
    EXPECT_EQ(hintText(0), u"press any key"_s);
    EXPECT_EQ(hintText(320), u"esc to finish"_s);
}

TEST(ViewSettings, ContainTheWishesButNoSettingChanges) {
    SettingsStore store;
    registerAppDefaults(store);
    const ViewSettings settings = readViewSettings(store, {.reducedMotion = true});
    EXPECT_TRUE(settings.reducedMotion);
    EXPECT_EQ(settings.screenAnimRaw, readViewSettings(store).screenAnimRaw);
    const Palette& palette = Palette::all()[0];
    EXPECT_EQ(backdropFor(settings, palette, false).screenAnim, ScreenAnim::Still);
    EXPECT_EQ(backdropFor(readViewSettings(store), palette, false).screenAnim, ScreenAnim::Drift);
}
