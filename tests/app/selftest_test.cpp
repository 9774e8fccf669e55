// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/selftest.h"

#include "settings/prefs.h"
#include "settings/settingsstore.h"
#include "settings/settingstable.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <cstdio>
#include <limits>
#include <memory>
#include <string>

using namespace morrowleaf;

namespace {

using namespace Qt::StringLiterals;

std::string outputOf(SettingsStore& store, const Moment& now) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> out(std::tmpfile(), &std::fclose);
    selftest(store, out.get(), now);
    std::rewind(out.get());
    std::string text(200, '\0');
    text.resize(std::fread(text.data(), 1, text.size(), out.get()));
    return text;
}

const std::string line = "selftest ok \xE2\x80\x94 124 quotes, connector parsing ok\n";

TEST(SelfTest, PrintsOneLine) {
    SettingsStore store;
    EXPECT_EQ(outputOf(store, Moment::now()), line);
}

TEST(SelfTest, TakesEveryDayOfAZoneWithStrangeDays) {
    SettingsStore store;
    for (const char* zone : {"America/Sao_Paulo", "Pacific/Apia", "Europe/Berlin"}) {
        const QDateTime start(QDate(2011, 6, 1), QTime(0, 30), QTimeZone(zone));
        EXPECT_EQ(
            outputOf(store, {static_cast<double>(start.toSecsSinceEpoch()), start.timeZone()}),
            line)
            << zone;
    }
}

TEST(SelfTest, ForgetsAChosenFrequency) {
    SettingsStore store;
    store.set(K::frequency, u"12h"_s);
    QStringList seen;
    QObject::connect(&store, &SettingsStore::changed, [&](const QString& key) {
        seen.append(key + u'=' + Prefs::frequency(store));
    });
    outputOf(store, Moment::now());
    EXPECT_EQ(seen, (QStringList{u"quoteFrequency=6h"_s, u"quoteFrequency=24h"_s}));
    EXPECT_FALSE(store.value(K::frequency));
}

TEST(SelfTest, TouchesNoOtherSetting) {
    SettingsStore store;
    store.set(K::source, u"https://example.org/quote"_s);
    store.set(K::palette, 7);
    outputOf(store, Moment::now());
    EXPECT_EQ(Prefs::source(store), u"https://example.org/quote"_s);
    EXPECT_EQ(Prefs::paletteIndex(store), 7);
}

TEST(SelfTestDeathTest, ADateThatCannotBeReckonedIsFatal) {
    SettingsStore store;
    EXPECT_DEATH(outputOf(store, {std::numeric_limits<double>::infinity(), QTimeZone::utc()}),
                 "date 0 days from now cannot be reckoned");
}

} // namespace
