// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settings/settingstable.h"

#include "settings/prefs.h"
#include "settings/settingsstore.h"
#include "tools/sourcepath.h"

#include <QFile>
#include <QSignalSpy>

#include <gmock/gmock.h>

using namespace morrowleaf;

namespace {

using namespace Qt::Literals::StringLiterals;

QString code(const QString& text) {
    return u'`' + text + u'`';
}
QString quoted(QLatin1StringView text) {
    return code(u'"' + text + u'"');
}
QString number(double value) {
    return code(QString::number(value));
}

QString range(QString lowest, QString highest) {
    return lowest.append(u" to "_s).append(highest);
}

// The first four cells of a setting's row in the page: key, type, default, range.
QStringList cells(const IntegerSetting& setting) {
    return {code(setting.key), u"integer"_s, number(double(setting.initial)),
            range(number(double(setting.lowest)), number(double(setting.highest)))};
}
QStringList cells(const RealSetting& setting) {
    return {code(setting.key), u"real"_s, number(setting.initial),
            range(number(setting.lowest), number(setting.highest))};
}
QStringList cells(const FlagSetting& setting) {
    return {code(setting.key), u"flag"_s, code(setting.initial ? u"true"_s : u"false"_s),
            u"`true` or `false`"_s};
}
QStringList cells(const TextSetting& setting) {
    QStringList choices;
    for (const QLatin1StringView choice : setting.choices) {
        choices.append(quoted(choice));
    }
    return {code(setting.key), u"text"_s, setting.initial ? quoted(*setting.initial) : u"none"_s,
            choices.isEmpty() ? u"any"_s : choices.join(u", "_s)};
}
QStringList cells(const TextListSetting& setting) {
    return {code(setting.key), u"list of texts"_s, u"none"_s, u"any"_s};
}

QString page() {
    QFile file(sourcePath(u"docs/settings.md"_s));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// The first four cells of every row whose first cell is a key.
QList<QStringList> rowsOfThePage() {
    QList<QStringList> rows;
    for (const QString& line : page().split(u'\n')) {
        if (line.startsWith(u"| `"_s)) {
            QStringList row = line.split(u'|').mid(1, 4);
            for (QString& cell : row) {
                cell = cell.trimmed();
            }
            rows.append(row);
        }
    }
    return rows;
}

} // namespace

TEST(SettingsTable, IsThatOfThePage) {
    QList<QStringList> rows;
    for (const AnySetting& setting : allSettings) {
        rows.append(std::visit([](const auto* row) { return cells(*row); }, setting));
    }
    const QList<QStringList> page = rowsOfThePage();
    ASSERT_EQ(page.size(), rows.size());
    for (qsizetype i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(page[i], rows[i]) << rows[i].join(" | "_L1).toStdString();
    }
}

TEST(SettingsTable, HasTheOrderOfResetThatThePageTells) {
    QString sentence = page();
    sentence.remove(0, sentence.indexOf("\"Reset\""_L1));
    qsizetype at = 0;
    for (const AnySetting& setting : settingsOfReset) {
        const QString key = std::visit([](const auto* row) { return code(row->key); }, setting);
        at = sentence.indexOf(key, at);
        ASSERT_GE(at, 0) << key.toStdString();
    }
    EXPECT_EQ(sentence.count(u'`'), 2 * settingsOfReset.size());
}

TEST(SettingsTable, HasFourteenDefaults) {
    const QList<std::pair<QLatin1StringView, QJsonValue>> expected{
        {"paletteIndex"_L1, -1},
        {"fontDesign"_L1, "fraunces"_L1},
        {"textScale"_L1, 1.0},
        {"grainEnabled"_L1, true},
        {"vignetteStrength"_L1, 0.55},
        {"backdropTransparency"_L1, 0.0},
        {"useLiquidGlass"_L1, true},
        {"textAnimation"_L1, "fade"_L1},
        {"screenAnimation"_L1, "drift"_L1},
        {"dismissSeconds"_L1, 15.0},
        {"showOnWake"_L1, true},
        {"quoteSourceURL"_L1, ""_L1},
        {"quoteFrequency"_L1, "24h"_L1},
        {"backgroundImagePath"_L1, ""_L1}};
    SettingsStore store;
    QSignalSpy changed(&store, &SettingsStore::changed);
    registerAppDefaults(store);
    EXPECT_EQ(changed.size(), 14);
    for (const auto& [key, value] : expected) {
        EXPECT_EQ(store.value(key), value) << key.data();
    }
    EXPECT_TRUE(store.stored().isEmpty());
}

TEST(SettingsTable, KeepsThreeKeysWithoutADefault) {
    SettingsStore store;
    registerAppDefaults(store);
    for (const auto* key : {"customBackgrounds", "cachedQuoteText", "cachedQuoteAuthor"}) {
        EXPECT_EQ(store.value(QString::fromLatin1(key)), std::nullopt) << key;
    }
}

TEST(SettingsTable, FallsBackToTheFactoryValueButForTheTypeface) {
    SettingsStore bare;
    SettingsStore store;
    registerAppDefaults(store);
    for (const AnySetting& setting : allSettings) {
        std::visit(
            [&](const auto* row) {
                if (row->key != K::font.key) {
                    EXPECT_EQ(bare.get(*row), store.get(*row)) << row->key.data();
                }
            },
            setting);
    }
    EXPECT_EQ(bare.get(K::font), u"serif"_s);
    EXPECT_EQ(store.get(K::font), u"fraunces"_s);
}

TEST(SettingsTable, GivesDefaultsThatLieInTheirRange) {
    const auto check = [](const auto& setting) {
        if constexpr (requires { setting.lowest; }) {
            EXPECT_LE(setting.lowest, setting.initial);
            EXPECT_LE(setting.initial, setting.highest);
        } else if constexpr (requires { setting.choices; }) {
            if (!setting.choices.empty()) {
                EXPECT_THAT(setting.choices, testing::Contains(setting.initial.value()));
                EXPECT_THAT(setting.choices, testing::Contains(setting.fallback));
            }
        }
    };
    for (const AnySetting& setting : allSettings) {
        std::visit([&](const auto* row) { check(*row); }, setting);
    }
}
