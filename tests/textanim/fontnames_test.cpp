// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/fonts.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

void append16(QByteArray& bytes, int value) {
    bytes.append(static_cast<char>(value >> 8)).append(static_cast<char>(value & 0xff));
}

struct Entry {
    int platform, encoding, language, name;
    QByteArray text;
};

QByteArray utf16(const char* ascii) {
    QByteArray bytes;
    for (const char* c = ascii; *c != 0; ++c) {
        append16(bytes, *c);
    }
    return bytes;
}

QByteArray tableOf(const std::vector<Entry>& entries) {
    QByteArray table;
    QByteArray texts;
    append16(table, 0);
    append16(table, static_cast<int>(entries.size()));
    append16(table, static_cast<int>(6 + 12 * entries.size()));
    for (const Entry& entry : entries) {
        for (const int field :
             {entry.platform, entry.encoding, entry.language, entry.name,
              static_cast<int>(entry.text.size()), static_cast<int>(texts.size())}) {
            append16(table, field);
        }
        texts += entry.text;
    }
    return table + texts;
}

TEST(FontNames, TypographicNamesArePreferred) {
    const auto names = readNameTable(tableOf({{3, 1, 0x409, 1, utf16("Old Light")},
                                              {3, 1, 0x409, 2, utf16("Regular")},
                                              {3, 1, 0x409, 6, utf16("Old-Light")},
                                              {3, 1, 0x409, 16, utf16("Old")},
                                              {3, 1, 0x409, 17, utf16("Light")}}));
    EXPECT_EQ(names, (FontNames{u"Old-Light"_s, u"Old"_s, u"Light"_s}));
}

TEST(FontNames, LegacyNamesAreTheFallback) {
    const auto names = readNameTable(
        tableOf({{1, 0, 0, 1, "Mac"}, {1, 0, 0, 2, "Bold"}, {1, 0, 0, 6, "Mac-Bold"}}));
    EXPECT_EQ(names, (FontNames{u"Mac-Bold"_s, u"Mac"_s, u"Bold"_s}));
}

TEST(FontNames, EnglishNamesArePreferred) {
    const auto names = readNameTable(tableOf({{3, 1, 0x407, 6, utf16("Deutsch")},
                                              {3, 1, 0x409, 6, utf16("English")},
                                              {1, 0, 0, 6, "Mac"}}));
    EXPECT_EQ(names->postScript, u"English"_s);
}

TEST(FontNames, APostScriptNameIsRequired) {
    EXPECT_EQ(readNameTable({}), std::nullopt);
    EXPECT_EQ(readNameTable("x"), std::nullopt);
    EXPECT_EQ(readNameTable(tableOf({{3, 1, 0x409, 1, utf16("Family")}})), std::nullopt);
}

TEST(FontNames, EveryTruncationIsSafe) {
    const QByteArray whole =
        tableOf({{3, 1, 0x409, 1, utf16("Family")}, {3, 1, 0x409, 6, utf16("Post")}});
    for (qsizetype length = 0; length < whole.size(); ++length) {
        EXPECT_EQ(readNameTable(whole.left(length)), std::nullopt) << length;
    }
    EXPECT_TRUE(readNameTable(whole));
}

} // namespace
