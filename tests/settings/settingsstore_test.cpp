// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settings/settingsstore.h"

#include <QJsonArray>

#include <cfloat>
#include <cmath>
#include <gmock/gmock.h>
#include <limits>

using namespace morrowleaf;
using testing::ElementsAre;

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr QLatin1StringView key{"k"};

struct Announced {
    explicit Announced(SettingsStore& store) {
        QObject::connect(&store, &SettingsStore::changed,
                         [this](const QString& name) { keys.push_back(name.toStdString()); });
    }
    std::vector<std::string> keys;
};

SettingsStore& with(SettingsStore& store, const QJsonValue& value) {
    store.set(key, value);
    return store;
}

} // namespace

TEST(SettingsStore, GivesZeroForAbsentKeys) {
    const SettingsStore store;
    EXPECT_EQ(store.value(key), std::nullopt);
    EXPECT_EQ(store.integer(key), 0);
    EXPECT_EQ(store.real(key), 0.0);
    EXPECT_FALSE(store.flag(key));
    EXPECT_EQ(store.text(key), std::nullopt);
    EXPECT_EQ(store.textList(key), std::nullopt);
}

TEST(SettingsStore, KeepsDefaultsBeneathStoredValues) {
    SettingsStore store;
    store.registerDefaults({{key, 7}});
    EXPECT_EQ(store.integer(key), 7);
    EXPECT_TRUE(store.stored().isEmpty());
    store.set(key, 8);
    EXPECT_EQ(store.integer(key), 8);
    store.remove(key);
    EXPECT_EQ(store.integer(key), 7);
}

TEST(SettingsStore, PrefersAnUnconvertibleStoredValueToTheDefault) {
    SettingsStore store;
    store.registerDefaults({{key, 7}});
    store.set(key, QJsonArray{1});
    EXPECT_EQ(store.integer(key), 0);
    store.set(key, u"seven"_s);
    EXPECT_EQ(store.integer(key), 0);
    EXPECT_EQ(store.real(key), 0.0);
}

TEST(SettingsStore, TreatsNullAsAbsent) {
    SettingsStore store;
    store.registerDefaults({{key, 7}});
    store.replaceStored({{key, QJsonValue::Null}});
    EXPECT_EQ(store.integer(key), 7);
    store.set(key, 8);
    store.set(key, QJsonValue::Null);
    EXPECT_EQ(store.integer(key), 7);
    EXPECT_FALSE(store.stored().contains(key));
}

TEST(SettingsStore, TruncatesRealsToIntegers) {
    SettingsStore store;
    EXPECT_EQ(with(store, 2.9).integer(key), 2);
    EXPECT_EQ(with(store, -2.9).integer(key), -2);
    EXPECT_EQ(with(store, 1e300).integer(key), std::numeric_limits<qint64>::max());
    EXPECT_EQ(with(store, -1e300).integer(key), std::numeric_limits<qint64>::min());
    EXPECT_EQ(with(store, 9223372036854775808.0).integer(key), std::numeric_limits<qint64>::max());
    EXPECT_EQ(with(store, true).integer(key), 1);
    EXPECT_EQ(with(store, false).integer(key), 0);
}

TEST(SettingsStore, KeepsIntegersBeyondADouble) {
    SettingsStore store;
    const qint64 large = (qint64(1) << 53) + 1;
    EXPECT_EQ(with(store, large).integer(key), large);
}

TEST(SettingsStore, ReadsTheNumericPrefixOfATextAsInteger) {
    SettingsStore store;
    const std::vector<std::pair<const char*, qint64>> cases = {
        {"12", 12},
        {"12.7", 12},
        {" \t12 px", 12},
        {"-3", -3},
        {"+3", 3},
        {"--3", 0},
        {"- 3", 0},
        {"1e3", 1},
        {"0x10", 0},
        {"", 0},
        {"px 12", 0},
        {"1,000", 1},
        {"99999999999999999999", std::numeric_limits<qint64>::max()},
        {"-99999999999999999999", std::numeric_limits<qint64>::min()},
        {"true", 0}};
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(with(store, QString::fromUtf8(text)).integer(key), expected) << text;
    }
}

TEST(SettingsStore, ReadsTheNumericPrefixOfATextAsReal) {
    SettingsStore store;
    const std::vector<std::pair<const char*, double>> cases = {
        {"0.5", 0.5},         {" -0.25x", -0.25}, {".5", 0.5}, {"5.", 5},    {".", 0},
        {"1.5e2px", 150},     {"1.5e", 1.5},      {"2e+", 2},  {"+2E1", 20}, {"inf", 0},
        {"nan", 0},           {"0x10", 0},        {"1,5", 1},  {"e5", 0},    {"1e999", DBL_MAX},
        {"-1e999", -DBL_MAX}, {"1e-999", 0},      {"", 0}};
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(with(store, QString::fromUtf8(text)).real(key), expected) << text;
    }
    EXPECT_EQ(with(store, true).real(key), 1.0);
    EXPECT_EQ(with(store, 3).real(key), 3.0);
}

TEST(SettingsStore, ReadsFlags) {
    SettingsStore store;
    for (const QJsonValue& yes :
         {QJsonValue(true), QJsonValue(1), QJsonValue(-0.5), QJsonValue(u"yes"_s),
          QJsonValue(u"TRUE"_s), QJsonValue(u"1"_s)}) {
        EXPECT_TRUE(with(store, yes).flag(key)) << yes.toVariant().toString().toStdString();
    }
    for (const QJsonValue& no :
         {QJsonValue(false), QJsonValue(0), QJsonValue(-0.0), QJsonValue(u"no"_s),
          QJsonValue(u""_s), QJsonValue(u"2"_s), QJsonValue(u"on"_s), QJsonValue(u" yes"_s),
          QJsonValue(u"1.0"_s), QJsonValue(QJsonArray{true}),
          QJsonValue(QJsonObject{{u"a"_s, true}})}) {
        EXPECT_FALSE(with(store, no).flag(key)) << no.toVariant().toString().toStdString();
    }
}

TEST(SettingsStore, TakesTextsOnlyAsTexts) {
    SettingsStore store;
    EXPECT_EQ(with(store, u""_s).text(key), QString());
    EXPECT_EQ(with(store, u"a"_s).text(key), u"a"_s);
    for (const QJsonValue& other :
         {QJsonValue(1), QJsonValue(true), QJsonValue(QJsonArray{u"a"_s})}) {
        EXPECT_EQ(with(store, other).text(key), std::nullopt);
    }
}

TEST(SettingsStore, TakesListsOfTextsOnly) {
    SettingsStore store;
    EXPECT_EQ(with(store, QJsonArray()).textList(key), QStringList());
    EXPECT_EQ(with(store, QJsonArray{u"a"_s, u"b"_s}).textList(key), QStringList({u"a"_s, u"b"_s}));
    EXPECT_EQ(with(store, QJsonArray{u"a"_s, 1}).textList(key), std::nullopt);
    EXPECT_EQ(with(store, u"a"_s).textList(key), std::nullopt);
}

TEST(SettingsStore, IgnoresNumbersThatAreNotFinite) {
    SettingsStore store;
    store.set(key, 2.0);
    store.set(key, std::nan(""));
    store.set(key, std::numeric_limits<double>::infinity());
    EXPECT_EQ(store.real(key), 2.0);
}

TEST(SettingsStore, AnnouncesAtOnceAndOnlyWhatIsNew) {
    SettingsStore store;
    store.registerDefaults({{key, 7}});
    Announced announced(store);
    store.set(key, 7);
    EXPECT_THAT(announced.keys, ElementsAre());
    store.set(key, 8);
    store.set(key, 8);
    EXPECT_THAT(announced.keys, ElementsAre("k"));
    store.remove(key);
    store.remove(key);
    EXPECT_THAT(announced.keys, ElementsAre("k", "k"));
}

TEST(SettingsStore, ReportsEachWriteToItsKeeper) {
    SettingsStore store;
    int writes = 0;
    QObject::connect(&store, &SettingsStore::written, [&] { ++writes; });
    store.set(key, 1);
    store.set(key, 1);
    store.remove(key);
    store.remove(key);
    EXPECT_EQ(writes, 4);
    store.replaceStored({{key, 2}});
    EXPECT_EQ(writes, 4);
}

TEST(SettingsStore, AnnouncesReplacedValuesAfterAllAreInPlace) {
    SettingsStore store;
    store.registerDefaults({{u"d"_s, 1}});
    store.replaceStored({{u"a"_s, 1}, {u"b"_s, 1}, {u"c"_s, 1}});
    Announced announced(store);
    QObject::connect(&store, &SettingsStore::changed, [&] {
        EXPECT_EQ(store.integer(u"a"_s), 2);
        EXPECT_EQ(store.integer(u"b"_s), 0);
    });
    store.replaceStored({{u"a"_s, 2}, {u"c"_s, 1}, {u"d"_s, 1}});
    EXPECT_THAT(announced.keys, testing::UnorderedElementsAre("a", "b"));
}

TEST(SettingsStore, ToleratesASlotThatWritesBack) {
    SettingsStore store;
    QObject::connect(&store, &SettingsStore::changed,
                     [&](const QString& name) { store.set(name, store.value(name).value()); });
    store.set(key, 5);
    EXPECT_EQ(store.integer(key), 5);
}

TEST(SettingsStore, ReadsASettingWithItsFallbackOnlyWithoutAnyValue) {
    SettingsStore store;
    EXPECT_EQ(store.get(K::palette), -1);
    EXPECT_EQ(store.get(K::vignette), 0.55);
    EXPECT_TRUE(store.get(K::grain));
    EXPECT_EQ(store.get(K::frequency), u"24h"_s);
    EXPECT_EQ(store.get(K::font), u"serif"_s);
    EXPECT_EQ(store.get(K::cachedAuthor), u"Unknown"_s);
    EXPECT_EQ(store.get(K::customBGs), QStringList());
    store.replaceStored({{K::palette, u"4 or so"_s},
                         {K::vignette, true},
                         {K::grain, QJsonArray{true}},
                         {K::frequency, 6},
                         {K::customBGs, u"/a.jpg"_s}});
    EXPECT_EQ(store.get(K::palette), 4);
    EXPECT_EQ(store.get(K::vignette), 1.0);
    EXPECT_FALSE(store.get(K::grain));
    EXPECT_EQ(store.get(K::frequency), u"24h"_s);
    EXPECT_EQ(store.get(K::customBGs), QStringList());
}

TEST(SettingsStore, StoresASettingInItsType) {
    SettingsStore store;
    store.set(K::vignette, 1);
    store.set(K::customBGs, QStringList{u"/a"_s, u"/b"_s});
    EXPECT_EQ(store.value(K::vignette), QJsonValue(1.0));
    EXPECT_EQ(store.value(K::customBGs), QJsonValue(QJsonArray{u"/a"_s, u"/b"_s}));
    EXPECT_EQ(store.get(K::customBGs), QStringList({u"/a"_s, u"/b"_s}));
}
