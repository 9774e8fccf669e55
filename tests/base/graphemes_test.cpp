// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/graphemes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <thread>
#include <vector>

using namespace morrowleaf;

namespace {

using namespace Qt::Literals::StringLiterals;

struct Counted {
    const char* what;
    const char16_t* text;
    int characters;
};

class CharacterCount : public ::testing::TestWithParam<Counted> {};

TEST_P(CharacterCount, IsThatOfPerceivedCharacters) {
    const QString text = QString::fromUtf16(GetParam().text);
    const int characters = GetParam().characters;
    EXPECT_EQ(characterCount(text), characters) << GetParam().what;
    EXPECT_FALSE(hasMoreCharacters(text, characters));
    EXPECT_EQ(hasMoreCharacters(text, characters / 2), characters / 2 < characters);
    const QList<qsizetype> ends = characterEnds(text);
    ASSERT_EQ(ends.size(), characters);
    EXPECT_TRUE(std::is_sorted(ends.begin(), ends.end()));
    if (!ends.isEmpty()) {
        EXPECT_EQ(ends.last(), text.size());
    }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CharacterCount,
    ::testing::Values(
        Counted{"nothing", u"", 0}, Counted{"plain", u"light", 5},
        Counted{"a composed accent", u"\u00E9", 1}, Counted{"a combining accent", u"e\u0301", 1},
        Counted{"CR LF", u"\r\n", 1}, Counted{"LF CR", u"\n\r", 2},
        Counted{"two lines", u"a\r\nb\n", 4},
        Counted{"marks among letters", u"ab\u0301cd\u2019\u0301e\r\n\u0301f", 9},
        Counted{"a family", u"\U0001F468\u200D\U0001F469\u200D\U0001F467\u200D\U0001F466", 1},
        Counted{"a skin tone", u"\U0001F44D\U0001F3FD", 1},
        Counted{"a rainbow flag", u"\U0001F3F3\uFE0F\u200D\U0001F308", 1},
        Counted{"a key cap", u"1\uFE0F\u20E3", 1}, Counted{"one flag", u"\U0001F1E9\U0001F1EA", 1},
        Counted{"two flags", u"\U0001F1E9\U0001F1EA\U0001F1EB\U0001F1F7", 2},
        Counted{"half a flag more", u"\U0001F1E9\U0001F1EA\U0001F1EB", 2},
        Counted{"a flag after an emoji", u"\U0001F600\U0001F1E9\U0001F1EA", 2},
        Counted{"a flag after a letter", u"a\U0001F1E9\U0001F1EA", 2},
        Counted{"a flag of tags",
                u"\U0001F3F4\U000E0067\U000E0062\U000E0073\U000E0063\U000E0074\U000E007F", 1},
        Counted{"Hangul jamo", u"\u1112\u1161\u11AB", 1}, Counted{"Hangul", u"\uD55C\uAE00", 2},
        Counted{"Kannada", u"\u0C95\u0CCD\u0CB7", 2},
        Counted{"Kannada with a vowel sign", u"\u0C95\u0CBE\u0CB2", 2},
        Counted{"Khmer", u"\u1780\u17D2\u1798", 2},
        Counted{"Tamil", u"\u0BA8\u0BBF\u0BB2\u0BCD", 2},
        Counted{"Sinhala", u"\u0DC1\u0DCA\u200D\u0DBB\u0DD3", 2},
        Counted{"Thai with a vowel above", u"\u0E01\u0E34\u0E19", 2},
        Counted{"a mark without a base", u"\u0301a", 2},
        Counted{"a lone surrogate", u"a\xD800z", 3}),
    [](const auto& info) {
        QString name = QString::fromLatin1(info.param.what);
        return name.replace(u' ', u'_').toStdString();
    });

TEST(CharacterEnds, AreInUtf16Units) {
    EXPECT_EQ(characterEnds(u"a\U0001F600e\u0301\r\n"_s), (QList<qsizetype>{1, 3, 5, 7}));
    EXPECT_EQ(characterEnds(QString()), QList<qsizetype>());
}

TEST(CharacterEnds, AgreeFromEveryThread) {
    const QString text = QStringList(50, u"\U0001F600\U0001F1E9\U0001F1EA e\u0301"_s).join(u' ');
    const QList<qsizetype> here = characterEnds(text);
    std::vector<QList<qsizetype>> seen(4);
    std::vector<std::thread> threads;
    threads.reserve(seen.size());
    for (QList<qsizetype>& place : seen) {
        threads.emplace_back([&place, &text] { place = characterEnds(text); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const QList<qsizetype>& ends : seen) {
        EXPECT_EQ(ends, here);
    }
}

TEST(CharacterEnds, ABorrowedTextIsNotReadPastItsEnd) {
    const char16_t units[] = {u'a', 0x0301, u'b'};
    const QString borrowed = QString::fromRawData(reinterpret_cast<const QChar*>(units), 1);
    EXPECT_EQ(characterEnds(borrowed), QList<qsizetype>{1});
}

TEST(DrawnPart, KeepsSixteenMarksOnABase) {
    for (const QChar mark : {QChar(0x0301), QChar(0x0F90), QChar(0x0489), QChar(0x0903)}) {
        const QString stacked = QChar(0x0F40) + QString(5000, mark);
        EXPECT_EQ(drawnPart(stacked, 20000), QChar(0x0F40) + QString(16, mark));
        EXPECT_EQ(drawnPart((u"e"_s + QString(300, mark)).repeated(200), 20000),
                  (u"e"_s + QString(16, mark)).repeated(200));
    }
}

TEST(DrawnPart, LeavesOrdinaryTextsAlone) {
    const QString stacked = u"e"_s + QString(16, QChar(0x0301));
    for (const QString& text :
         {u"light and shadow, for ever"_s, stacked.repeated(3),
          u"\U0001F468\u200D\U0001F469\u200D\U0001F467\u200D\U0001F466"_s.repeated(20),
          u"\U0001F1E9\U0001F1EA\U0001F1EB\U0001F1F7"_s.repeated(20),
          u"\U0001F3F4\U000E0067\U000E0062\U000E0073\U000E0063\U000E0074\U000E007F"_s,
          u"\u0C95\u0CCD\u0CB7\u0BA8\u0BBF\u0BB2\u0BCD"_s.repeated(9)}) {
        EXPECT_EQ(drawnPart(text, 20000), text) << text.toStdString();
    }
}

TEST(DrawnPart, KeepsTheNumberOfCharacters) {
    // The second mark is a character of its own.
    for (const QString& piece :
         {u"e"_s + QString(40, QChar(0x0301)), QChar(0x1000) + QString(40, QChar(0x102B)) + u'x',
          QString(40, QChar(0x0301)) + u" "_s}) {
        const QString text = piece.repeated(30);
        EXPECT_EQ(characterCount(drawnPart(text, 20000)), characterCount(text));
    }
}

TEST(DrawnPart, BoundsEveryCharacterAndTheWhole) {
    EXPECT_EQ(drawnPart(QString(5000, QChar(0x1100)), 20000).size(), 64);
    EXPECT_EQ(drawnPart(QString(5000, u'w'), 300).size(), 300);
    EXPECT_LE(drawnPart(u"\U0001F600"_s.repeated(300), 301).size(), 301);
}

TEST(IsEmoji, FollowsThePresentation) {
    for (const QString& emoji :
         {u"\U0001F600"_s, u"\u2764\uFE0F"_s, u"1\uFE0F\u20E3"_s, u"\U0001F1E9\U0001F1EA"_s,
          u"\U0001F44D\U0001F3FD"_s, u"\u261D\U0001F3FD"_s, u"\u2764\u200D\U0001F525"_s,
          u"\U0001F575\u200D\u2642"_s, u"\U0001F3F3\u200D\U0001F308"_s}) {
        EXPECT_TRUE(isEmoji(emoji)) << emoji.toStdString();
    }
    for (const QString& text :
         {u"\u2764"_s, u"\U0001F600\uFE0E"_s, u"1"_s, u"\u00A9"_s, u"e\uFE0F"_s, u"\u0BA8"_s,
          u"1\u200D"_s, u"\u2764\uFE0E\u200D\U0001F525"_s}) {
        EXPECT_FALSE(isEmoji(text)) << text.toStdString();
    }
}

TEST(HasMoreCharacters, CountsUpToAnyLimit) {
    const QString text = QString(1000, u'a');
    EXPECT_FALSE(hasMoreCharacters(text, std::numeric_limits<int>::max()));
    EXPECT_TRUE(hasMoreCharacters(text, 999));
    EXPECT_FALSE(hasMoreCharacters({}, 0));
}

} // namespace
