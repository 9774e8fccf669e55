// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settings/prefs.h"
#include "settings/settingsstore.h"
#include "settings/settingstable.h"

#include <QJsonArray>

#include <gtest/gtest.h>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

TEST(Prefs, HasZeroValuesBeforeTheDefaults) {
    const SettingsStore store;
    EXPECT_EQ(Prefs::paletteIndex(store), 0);
    EXPECT_EQ(Prefs::textScale(store), 0.0);
    EXPECT_FALSE(Prefs::grain(store));
    EXPECT_EQ(Prefs::vignette(store), 0.0);
    EXPECT_EQ(Prefs::dismissSeconds(store), 0.0);
    EXPECT_FALSE(Prefs::showOnWake(store));
    EXPECT_EQ(Prefs::source(store), u""_s);
    EXPECT_EQ(Prefs::frequency(store), u"24h"_s);
    EXPECT_EQ(Prefs::bgImage(store), u""_s);
    EXPECT_TRUE(Prefs::customBGs(store).isEmpty());
    EXPECT_EQ(Prefs::fontDesign(store), FontDesign::Serif);
}

TEST(Prefs, HasTheRegisteredValues) {
    SettingsStore store;
    registerAppDefaults(store);
    EXPECT_EQ(Prefs::paletteIndex(store), -1);
    EXPECT_EQ(Prefs::textScale(store), 1.0);
    EXPECT_TRUE(Prefs::grain(store));
    EXPECT_EQ(Prefs::vignette(store), 0.55);
    EXPECT_EQ(Prefs::dismissSeconds(store), 15.0);
    EXPECT_TRUE(Prefs::showOnWake(store));
    EXPECT_EQ(Prefs::source(store), u""_s);
    EXPECT_EQ(Prefs::frequency(store), u"24h"_s);
    EXPECT_EQ(Prefs::bgImage(store), u""_s);
    EXPECT_TRUE(Prefs::customBGs(store).isEmpty());
    EXPECT_EQ(Prefs::fontDesign(store), FontDesign::Serif);
}

TEST(Prefs, ReadsAfreshWithoutRangeChecks) {
    SettingsStore store;
    registerAppDefaults(store);
    store.set(K::palette, 99);
    store.set(K::textScale, -2.5);
    store.set(K::vignette, 7);
    EXPECT_EQ(Prefs::paletteIndex(store), 99);
    EXPECT_EQ(Prefs::textScale(store), -2.5);
    EXPECT_EQ(Prefs::vignette(store), 7.0);
    store.set(K::palette.key, u"4 or so"_s);
    EXPECT_EQ(Prefs::paletteIndex(store), 4);
    store.set(K::palette.key, QJsonObject{{u"a"_s, 1}});
    EXPECT_EQ(Prefs::paletteIndex(store), 0);
}

TEST(Prefs, FallsBackWhereNoTextIsStored) {
    SettingsStore store;
    registerAppDefaults(store);
    store.set(K::frequency.key, 6);
    store.set(K::source.key, true);
    store.set(K::font.key, QJsonArray{u"sans"_s});
    EXPECT_EQ(Prefs::frequency(store), u"24h"_s);
    EXPECT_EQ(Prefs::source(store), u""_s);
    EXPECT_EQ(Prefs::fontDesign(store), FontDesign::Serif);
    store.set(K::frequency, u"whenever"_s);
    EXPECT_EQ(Prefs::frequency(store), u"whenever"_s);
}

TEST(Prefs, TakesOwnBackgroundsFromAListOfTextsOnly) {
    SettingsStore store;
    store.set(K::customBGs.key, u"/a.jpg"_s);
    EXPECT_TRUE(Prefs::customBGs(store).isEmpty());
    store.set(K::customBGs.key, QJsonArray{u"/a.jpg"_s});
    EXPECT_EQ(Prefs::customBGs(store), QStringList{u"/a.jpg"_s});
    store.set(K::customBGs.key, QJsonArray{u"/a.jpg"_s, 2});
    EXPECT_TRUE(Prefs::customBGs(store).isEmpty());
}

TEST(Prefs, MapsFontNamesExactly) {
    EXPECT_EQ(fontDesignNamed(u"sans"_s), FontDesign::Default);
    EXPECT_EQ(fontDesignNamed(u"rounded"_s), FontDesign::Rounded);
    EXPECT_EQ(fontDesignNamed(u"mono"_s), FontDesign::Monospaced);
    for (const char* name : {"serif", "fraunces", "Sans", "sans ", "MONO", ""}) {
        EXPECT_EQ(fontDesignNamed(QString::fromUtf8(name)), FontDesign::Serif) << name;
    }
}
