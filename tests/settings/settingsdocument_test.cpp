// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settings/settingsdocument.h"

#include <QJsonArray>

#include <gtest/gtest.h>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray after(const QByteArray& text, const QString& key, const QJsonValue& value) {
    auto document = SettingsDocument::parse(text);
    if (!document) {
        ADD_FAILURE() << text.toStdString();
        return {};
    }
    document->set(key, value);
    QByteArray changed = document->text();
    const auto again = SettingsDocument::parse(changed);
    EXPECT_TRUE(again) << changed.toStdString();
    EXPECT_EQ(again->values(), document->values()) << changed.toStdString();
    return changed;
}

// Removes blanks and line breaks; only for JSON whose strings have none.
QByteArray packed(QByteArray text) {
    return text.replace(' ', "").replace('\n', "");
}

} // namespace

TEST(SettingsDocument, RefusesWhatIsNoObject) {
    for (const char* text : {"", " ", "[1]", "3", "\"a\"", "null", "{", "{\"a\":}", "{\"a\":1",
                             "{\"a\":1} x", "{'a':1}", "{\"a\":01}", "{\"a\":1,}", "\xff{}",
                             "{\"a\":\"\xff\"}", "{\"a\":1e400}", "{\"a\":NaN}"}) {
        EXPECT_FALSE(SettingsDocument::parse(text)) << text;
    }
    EXPECT_FALSE(SettingsDocument::parse(QByteArray(5'000'000, '[')));
    EXPECT_FALSE(SettingsDocument::parse("{\"a\":" + QByteArray(100'000, '{')));
}

TEST(SettingsDocument, RefusesWhatIsNestedOrPopulatedBeyondUse) {
    const auto nested = [](int depth) {
        return "{\"a\":" + QByteArray(depth, '[') + QByteArray(depth, ']') + '}';
    };
    EXPECT_TRUE(SettingsDocument::parse(nested(500)));
    EXPECT_FALSE(SettingsDocument::parse(nested(5000)));
    const auto populated = [](int keys) {
        QByteArray text = "{";
        for (int i = 0; i < keys; ++i) {
            text += '"' + QByteArray::number(i) + "\":0,";
        }
        return text + "\"last\":1}";
    };
    EXPECT_TRUE(SettingsDocument::parse(populated(5000)));
    EXPECT_FALSE(SettingsDocument::parse(populated(1'000'000)));
}

TEST(SettingsDocument, ReadsAFileWithAByteOrderMark) {
    EXPECT_EQ(SettingsDocument::parse("\xEF\xBB\xBF{\"a\":1}")->values().value("a"_L1), 1);
}

TEST(SettingsDocument, KeepsOrderAndValuesOfWhatItDoesNotChange) {
    const QByteArray text =
        "{\"z\":1.5,\"deep\":{\"y\":[1,{\"b\":1e+300,\"a\":null}],\"x\":\"},{\"},"
        "\"max\":9223372036854775807,\"min\":-9223372036854775808,"
        "\"huge\":18446744073709551615,\"odd\":9007199254740993,\"a\":true}";
    QByteArray expected = text;
    EXPECT_EQ(packed(after(text, u"z"_s, 2)), expected.replace("1.5", "2"));
    EXPECT_EQ(packed(after(text, u"new"_s, u"n"_s)),
              QByteArray(text).chopped(1) + ",\"new\":\"n\"}");
    expected = text;
    EXPECT_EQ(packed(after(text, u"a"_s, QJsonValue::Undefined)),
              expected.replace(",\"a\":true}", "}"));
}

TEST(SettingsDocument, KeepsNumbersTooLongForAnyTypeAsNearAsTheyCanBe) {
    const auto document = SettingsDocument::parse("{\"a\":123456789012345678901234567890}");
    EXPECT_EQ(document->values().value("a"_L1).toDouble(), 123456789012345678901234567890.0);
}

TEST(SettingsDocument, IsEqualWhenTheValueIsThere) {
    auto document = SettingsDocument::parse("{\"a\": 1.50}");
    const SettingsDocument before = *document;
    document->set(u"a"_s, 1.5);
    document->set(u"b"_s, QJsonValue::Undefined);
    EXPECT_EQ(*document, before);
    document->set(u"a"_s, 2);
    EXPECT_NE(*document, before);
}

TEST(SettingsDocument, TakesTheLastOfKeysWrittenTwice) {
    const QByteArray text = "{\"a\":1,\"b\":0,\"a\":2}";
    EXPECT_EQ(SettingsDocument::parse(text)->values().value("a"_L1), QJsonValue(2));
    EXPECT_EQ(packed(after(text, u"a"_s, 3)), "{\"a\":3,\"b\":0}");
    EXPECT_EQ(packed(after(text, u"a"_s, QJsonValue::Undefined)), "{\"b\":0}");
}

TEST(SettingsDocument, KnowsAKeyHoweverItIsEscaped) {
    EXPECT_EQ(packed(after("{\"\\u0061b\":1}", u"ab"_s, 2)), "{\"ab\":2}");
    EXPECT_EQ(packed(after("{}", u"ü\"\\"_s, 1)), QByteArray("{\"ü\\\"\\\\\":1}"));
}

TEST(SettingsDocument, WritesHalvesOfCharactersAsReplacements) {
    SettingsDocument document;
    document.set(u"k"_s, QString(QChar(0xD83D)) + u'x');
    const auto read = SettingsDocument::parse(document.text());
    ASSERT_TRUE(read);
    EXPECT_TRUE(read->values().value("k"_L1).toString().endsWith(u'x'));
}

TEST(SettingsDocument, KeepsTrueTypes) {
    const std::vector<QJsonValue> values = {qint64(9007199254740993),
                                            std::numeric_limits<qint64>::min(),
                                            0.1,
                                            -1,
                                            true,
                                            false,
                                            u""_s,
                                            u"1"_s,
                                            QJsonArray{u"one"_s},
                                            QJsonArray(),
                                            QJsonObject{{u"x"_s, QJsonArray{1, u"2"_s, 3.5}}},
                                            u"\u2028 “q” \n \U0001F600"_s};
    for (const QJsonValue& value : values) {
        const auto read = SettingsDocument::parse(after("{\"x\":0}", u"k"_s, value));
        EXPECT_EQ(read->values().value("k"_L1), value);
        EXPECT_EQ(read->values().value("k"_L1).type(), value.type());
        EXPECT_EQ(read->values().value("k"_L1).toInteger(), value.toInteger());
    }
}
