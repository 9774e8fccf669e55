// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settings/settingsdocument.h"

#include <QJsonArray>

#include <gtest/gtest.h>

using namespace morrowleaf;

namespace {

QByteArray after(const QByteArray& text, const QString& key, const QJsonValue& value) {
    auto document = SettingsDocument::parse(text);
    if (!document) {
        ADD_FAILURE() << text.toStdString();
        return {};
    }
    document->apply(key, value);
    QByteArray changed = document->text();
    const auto again = SettingsDocument::parse(changed);
    EXPECT_TRUE(again) << changed.toStdString();
    EXPECT_EQ(again->values(), document->values()) << changed.toStdString();
    return changed;
}

} // namespace

TEST(SettingsDocument, RefusesWhatIsNoObject) {
    for (const char* text : {"", " ", "[1]", "3", "\"a\"", "null", "{", "{\"a\":}", "{\"a\":1",
                             "{\"a\":1} x", "{'a':1}", "{\"a\":01}", "{\"a\":1,}", "\xff{}"}) {
        EXPECT_FALSE(SettingsDocument::parse(text)) << text;
    }
    EXPECT_FALSE(SettingsDocument::parse(QByteArray(5'000'000, '[')));
    EXPECT_FALSE(SettingsDocument::parse("{\"a\":" + QByteArray(100'000, '{')));
}

TEST(SettingsDocument, GivesBackEveryTextUnchanged) {
    for (const char* text :
         {"{}", " { } \n", "{\n}", "{\"a\":1}", "{\"a\" : [1,{\"b\":\"},{\\\"\"}] , \"c\":null}\n",
          "\xEF\xBB\xBF{\"a\":1}", "{\"a\":1,\"a\":2}", "{\"\\u0061\\\"\":\"\\\\\"}",
          "{\"n\":123456789012345678901234567890,\"r\":1.0000000000000000000001}"}) {
        const auto document = SettingsDocument::parse(text);
        ASSERT_TRUE(document) << text;
        EXPECT_EQ(document->text(), QByteArray(text));
    }
}

TEST(SettingsDocument, ChangesOneValueAndNothingElse) {
    const QByteArray text = "{ \"z\": 1.50,\n\t\"deep\": {\"x\": [1, {\"y\": 1e300}]},\n"
                            "  \"a\": 12345678901234567890123 }\n\n";
    QByteArray expected = text;
    EXPECT_EQ(after(text, "z", 2), expected.replace("1.50", "2"));
}

TEST(SettingsDocument, LeavesTheTextWhenTheValueIsThere) {
    EXPECT_EQ(after("{\"a\": 1.50}", "a", 1.5), "{\"a\": 1.50}");
    EXPECT_EQ(after("{\"a\": 1}", "b", QJsonValue::Undefined), "{\"a\": 1}");
}

TEST(SettingsDocument, AddsInTheStyleOfItsAuthor) {
    EXPECT_EQ(after("{}", "a", "x"), "{\n    \"a\": \"x\"\n}");
    EXPECT_EQ(after("{\n  \"a\":1\n}\n", "b", true), "{\n  \"a\":1,\n  \"b\":true\n}\n");
    EXPECT_EQ(after("{\"a\":1}", "b", 2), "{\"a\":1,\"b\":2}");
    EXPECT_EQ(SettingsDocument().text(), "{}\n");
    SettingsDocument document;
    document.apply("list", QJsonArray{"one"});
    EXPECT_EQ(document.text(), "{\n    \"list\": [\n        \"one\"\n    ]\n}\n");
}

TEST(SettingsDocument, Removes) {
    const QByteArray text = "{\n  \"a\":1,\n  \"b\":2,\n  \"c\":3\n}\n";
    EXPECT_EQ(after(text, "a", QJsonValue::Undefined), "{\n  \"b\":2,\n  \"c\":3\n}\n");
    EXPECT_EQ(after(text, "c", QJsonValue::Undefined), "{\n  \"a\":1,\n  \"b\":2\n}\n");
    EXPECT_EQ(after("{\"a\":1}", "a", QJsonValue::Undefined), "{}");
}

TEST(SettingsDocument, TakesTheLastOfKeysWrittenTwice) {
    const QByteArray text = "{\"a\":1,\"a\":2}";
    EXPECT_EQ(SettingsDocument::parse(text)->values().value("a"), QJsonValue(2));
    EXPECT_EQ(after(text, "a", 3), "{\"a\":1,\"a\":3}");
    EXPECT_EQ(after(text, "a", QJsonValue::Undefined), "{}");
}

TEST(SettingsDocument, KnowsAKeyHoweverItIsEscaped) {
    EXPECT_EQ(after("{\"\\u0061b\":1}", "ab", 2), "{\"\\u0061b\":2}");
    EXPECT_EQ(after("{}", QString::fromUtf8("ü\"\\"), 1), QByteArray("{\n    \"ü\\\"\\\\\": 1\n}"));
}

TEST(SettingsDocument, KeepsTrueTypes) {
    const std::vector<QJsonValue> values = {qint64(9007199254740993),
                                            0.1,
                                            -1,
                                            true,
                                            false,
                                            "",
                                            "1",
                                            QJsonArray{"one"},
                                            QJsonArray(),
                                            QJsonObject{{"x", QJsonArray{1, "2", 3.5}}},
                                            QString::fromUtf8("\u2028 “q” \n \U0001F600")};
    for (const QJsonValue& value : values) {
        const auto read = SettingsDocument::parse(after("{\"x\":0}", "k", value));
        EXPECT_EQ(read->values().value("k"), value);
        EXPECT_EQ(read->values().value("k").type(), value.type());
        EXPECT_EQ(read->values().value("k").toInteger(), value.toInteger());
    }
}
