// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/linebalancing.h"

#include "base/graphemes.h"
#include "quotes/collection.h"

#include <gtest/gtest.h>

#include <limits>

using namespace morrowleaf;

namespace {

using namespace Qt::StringLiterals;

// `count` words of `wordLength` characters each.
QString wordsOf(qsizetype wordLength, qsizetype count) {
    return QStringList(count, QString(wordLength, u'a')).join(u' ');
}

TEST(LineBalancing, WithoutWordsThereAreNoLines) {
    EXPECT_EQ(balancedLines(QString()), QStringList());
    EXPECT_EQ(balancedLines(u""_s), QStringList());
    EXPECT_EQ(balancedLines(u"    "_s), QStringList());
}

TEST(LineBalancing, OneWordIsTheOnlyLine) {
    EXPECT_EQ(balancedLines(u"word"_s), QStringList{u"word"_s});
    EXPECT_EQ(balancedLines(u"   word  "_s), QStringList{u"word"_s});
    const QString endless(5000, u'x');
    EXPECT_EQ(balancedLines(endless), QStringList{endless});
    EXPECT_EQ(balancedLines(u"word"_s, 0), QStringList{u"word"_s});
}

TEST(LineBalancing, TwoLettersShareALine) {
    EXPECT_EQ(balancedLines(u"a b"_s, 32), QStringList{u"a b"_s});
}

TEST(LineBalancing, SeventyCharactersMakeThreeLinesOrTwo) {
    const QString text = wordsOf(4, 14) + u'a'; // 13 * 5 + 5
    ASSERT_EQ(characterCount(text), 70);
    // 24 each, at most 26: five words of four are 24.
    EXPECT_EQ(balancedLines(text, 32),
              (QStringList{wordsOf(4, 5), wordsOf(4, 5), wordsOf(4, 4) + u'a'}));
    // 35 each, at most 37: seven words are 34.
    EXPECT_EQ(balancedLines(text, 48), (QStringList{wordsOf(4, 7), wordsOf(4, 7) + u'a'}));
}

TEST(LineBalancing, TheDefaultTargetIsThirtyTwo) {
    const QString text = wordsOf(7, 8) + u'a'; // 64 characters: two lines, but three at 31
    EXPECT_EQ(balancedLines(text), balancedLines(text, 32));
    EXPECT_NE(balancedLines(text), balancedLines(text, 31));
    const QString more = text + u'a'; // 65 characters: three lines, but two at 33
    EXPECT_EQ(balancedLines(more), balancedLines(more, 32));
    EXPECT_NE(balancedLines(more), balancedLines(more, 33));
}

TEST(LineBalancing, AnExactMultipleNeedsNoFurtherLine) {
    const QString two = wordsOf(7, 8) + u'a'; // 64 characters: 2 lines of 32, at most 34
    ASSERT_EQ(characterCount(two), 64);
    EXPECT_EQ(balancedLines(two, 32), (QStringList{wordsOf(7, 4), wordsOf(7, 4) + u'a'}));
    const QString more = two + u'a'; // 65: 3 lines of 22, at most 24
    EXPECT_EQ(balancedLines(more, 32),
              (QStringList{wordsOf(7, 3), wordsOf(7, 3), wordsOf(7, 2) + u"aa"_s}));
}

TEST(LineBalancing, ALineMayExceedTheMeanLengthByTwo) {
    // 40 characters, 2 lines of 20, at most 22.
    const QString fits = QString(11, u'a') + u' ' + QString(10, u'b') + u' ' + QString(17, u'c');
    ASSERT_EQ(characterCount(fits), 40);
    EXPECT_EQ(balancedLines(fits, 20), (QStringList{fits.left(22), fits.mid(23)}));
    const QString exceeds = QString(11, u'a') + u' ' + QString(11, u'b') + u' ' + QString(16, u'c');
    ASSERT_EQ(characterCount(exceeds), 40);
    EXPECT_EQ(balancedLines(exceeds, 20),
              (QStringList{exceeds.left(11), exceeds.mid(12, 11), exceeds.mid(24)}));
}

TEST(LineBalancing, ExtraSpacesCountButAreNotKept) {
    // 9 letters and 3 spaces: one line at most 14. With 20 spaces more: 32
    // characters, 3 lines of 11, at most 13.
    EXPECT_EQ(balancedLines(u"aaa bbb ccc d"_s, 13), QStringList{u"aaa bbb ccc d"_s});
    const QString spaced = u"  aaa   bbb ccc"_s + QString(17, u' ');
    ASSERT_EQ(characterCount(spaced), 32);
    EXPECT_EQ(balancedLines(spaced, 16), QStringList{u"aaa bbb ccc"_s});
    // Leading spaces alone make it two lines of 6, at most 8.
    EXPECT_EQ(balancedLines(u"aaa bbb ccc"_s, 11), QStringList{u"aaa bbb ccc"_s});
    EXPECT_EQ(balancedLines(u" aaa bbb ccc"_s, 11), (QStringList{u"aaa bbb"_s, u"ccc"_s}));
}

TEST(LineBalancing, ALongWordGetsALineOfItsOwn) {
    const QString giant(60, u'x');
    EXPECT_EQ(balancedLines(u"a "_s + giant + u" b"_s, 16), (QStringList{u"a"_s, giant, u"b"_s}));
}

TEST(LineBalancing, OnlyTheSpaceSeparates) {
    EXPECT_EQ(balancedLines(u"a\tb"_s), QStringList{u"a\tb"_s});
    EXPECT_EQ(balancedLines(u"a\nb"_s), QStringList{u"a\nb"_s});
    EXPECT_EQ(balancedLines(u"a\u00A0b\u2003c\u3000d\u200Be"_s),
              QStringList{u"a\u00A0b\u2003c\u3000d\u200Be"_s});
    EXPECT_EQ(balancedLines(u"one\n two"_s), QStringList{u"one\n two"_s});
    EXPECT_EQ(balancedLines(u" \n "_s), QStringList{u"\n"_s});
}

TEST(LineBalancing, ALineBreakCountsAsOneCharacter) {
    // Limit 6 + 2: "aaa\r\n bbb" is 8 characters with the break as one.
    const QString text = u"aaa\r\n bbb ccc"_s;
    ASSERT_EQ(characterCount(text), 12);
    EXPECT_EQ(balancedLines(text, 6), (QStringList{u"aaa\r\n bbb"_s, u"ccc"_s}));
}

TEST(LineBalancing, LengthsAreOfPerceivedCharacters) {
    const QString family = u"\U0001F468\u200D\U0001F469\u200D\U0001F467\u200D\U0001F466"_s;
    const QString text = QStringList(8, family).join(u' '); // 15 characters
    EXPECT_EQ(balancedLines(text, 15), QStringList{text});
    const QString accented = QStringList(8, u"e\u0301"_s).join(u' ');
    EXPECT_EQ(balancedLines(accented, 15), QStringList{accented});
}

TEST(LineBalancing, AMarkJoinsTheSpaceBeforeIt) {
    // A mark that begins a word joins the space before it on the line.
    const QString text = u"aaaa \u0308bbb cccc"_s;
    ASSERT_EQ(characterCount(text), 13);
    EXPECT_EQ(balancedLines(text, 13), QStringList{text});
}

TEST(LineBalancing, ANegativeTargetMakesOneLine) {
    EXPECT_EQ(balancedLines(u"one two three"_s, -5), QStringList{u"one two three"_s});
}

TEST(LineBalancing, ExtremeTargetsTerminate) {
    const QString text = wordsOf(3, 200);
    EXPECT_EQ(balancedLines(text, std::numeric_limits<int>::max()), QStringList{text});
    EXPECT_EQ(balancedLines(text, std::numeric_limits<int>::min()), QStringList{text});
    EXPECT_EQ(balancedLines(text, 1).size(), 200);
}

TEST(LineBalancing, LosesNothingOfTheBuiltinTexts) {
    for (const Quote quote : quotes) {
        for (const int target : {16, 32, 41, 45, 48}) {
            const QStringList lines = balancedLines(quote.text, target);
            EXPECT_EQ(lines.join(u' '), quote.text);
            const qsizetype length = quote.text.size();
            const qsizetype wanted = (length + target - 1) / target;
            const qsizetype limit = (length + wanted - 1) / wanted + 2;
            for (const QString& line : lines) {
                EXPECT_TRUE(line.size() <= limit || !line.contains(u' ')) << line.toStdString();
            }
        }
    }
}

TEST(LineBalancing, AVeryLongTextIsCutToo) {
    const QString text = wordsOf(6, 20000);
    const QStringList lines = balancedLines(text, 41);
    EXPECT_EQ(lines.join(u' '), text);
    EXPECT_LT(lines.size(), 4000);
}

TEST(LineBalancingDeathTest, ATargetOfZeroIsFatal) {
    EXPECT_DEATH(balancedLines(u"two words"_s, 0), "Lines of 0 characters");
}

} // namespace
