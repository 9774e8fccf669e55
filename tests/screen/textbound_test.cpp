// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/layout.h"

#include "base/graphemes.h"
#include "tests/screen/drawnview.h"
#include "tests/screen/sceneforscreens.h"
#include "textanim/stagger.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype hostileSize = qsizetype{4} << 20;

struct Hostile {
    const char* name;
    QString piece; // repeated until there are 4 MiB
};

std::vector<Hostile> hostileTexts() {
    return {{"words", u"mountain "_s},
            {"one word", u"w"_s},
            {"one-letter words", u"a "_s},
            {"combining marks", QString(QChar(0x0301))},
            {"marked letters", u"a"_s + QString(15, QChar(0x0301))},
            {"zero characters", QString(QChar(0))},
            {"line separators", QString(QChar(0x2028))},
            {"line feeds", u"a\n"_s},
            {"directions", u"\u202Ea\u2066\u05D0 "_s},
            {"joiners", QString(QChar(0x200D))},
            {"half pairs", QString(QChar(0xD83D))},
            {"emoji", u"👩‍👧"_s}};
}

} // namespace

TEST(BeginningOf, CutsAfterTheGivenNumberOfCharacters) {
    const QString family = u"👨‍👩‍👧‍👦"_s;
    EXPECT_EQ(beginningOf(u""_s, 5), u""_s);
    EXPECT_EQ(beginningOf(u"abcde"_s, 5), u"abcde"_s);
    EXPECT_EQ(beginningOf(u"abcdef"_s, 5), u"abcde"_s);
    EXPECT_EQ(beginningOf(family.repeated(599), 2000), family.repeated(599));
    EXPECT_EQ(beginningOf(u"e\u0301"_s.repeated(6), 5), u"e\u0301"_s.repeated(5));
}

TEST(BeginningOf, NeverSplitsACharacter) {
    const QString family = u"👨‍👩‍👧‍👦"_s; // 11 units
    EXPECT_EQ(beginningOf(family.repeated(9), 4), family);
    EXPECT_EQ(beginningOf(u"ab"_s + QString(100, QChar(0x0301)), 5), u"a"_s);
}

TEST(BeginningOf, CutsACharacterOfExtremeLength) {
    const QString start = beginningOf(u"a"_s + QString(1000, QChar(0x0301)), 100);
    EXPECT_EQ(start, u"a"_s + QString(63, QChar(0x0301)));
    const QString pairs =
        u"\U0001F600"_s + QString(61, QChar(0x0301)) + u"\U0001D165"_s.repeated(500);
    const QString whole = beginningOf(pairs, 100);
    EXPECT_EQ(whole.size(), 63);
    EXPECT_FALSE(whole.back().isHighSurrogate());
    EXPECT_EQ(beginningOf(u"a"_s + QString(1000, QChar(0x0301)), 1).size(), 4);
}

TEST(VisibleCharacterLimit, GrowsWithTheViewWithinItsBounds) {
    EXPECT_EQ(visibleCharacterLimit(982, 44, 41), 65 * 43);
    EXPECT_EQ(visibleCharacterLimit(982, 68, 26), 2000);
    EXPECT_EQ(visibleCharacterLimit(2160, 4, 48), 20000);
    EXPECT_EQ(visibleCharacterLimit(0, 44, 41), 2000);
    EXPECT_EQ(visibleCharacterLimit(std::nan(""), 44, 41), 2000);
}

TEST(QuoteViewBounds, LaysOutNoMoreThanCanBeSeen) {
    for (const Hostile& hostile : hostileTexts()) {
        SCOPED_TRACE(hostile.name);
        QuoteViewState state = plainState();
        state.quote.text = hostile.piece.repeated(hostileSize / hostile.piece.size());
        state.quote.author = state.quote.text;
        const QuoteView view(state, shippedFonts());
        const qsizetype seen = visibleCharacterLimit(982, 44, 48);
        qsizetype units = 0;
        for (qsizetype i = 0; i < view.lineCount(); ++i) {
            units += view.lineText(i).size();
            EXPECT_LE(characterCount(view.lineText(i)), seen / 2);
        }
        EXPECT_LE(view.lineCount(), 150);
        EXPECT_LE(units, 4 * seen);
        EXPECT_LE(view.state().quote.author.size(), 4 * seen);
    }
}

// The lines reach the bottom edge, so the part that is cut off could not be seen.
TEST(QuoteViewBounds, LinesReachTheBottomOfTheView) {
    for (const QSizeF size : {QSizeF(1512, 982), QSizeF(3840, 2160), QSizeF(1080, 1920)}) {
        for (const double textScale : {0.5, 1.0, 1.6}) {
            QuoteViewState state = plainState(size);
            state.settings.sizeScale = textScale;
            state.quote = {u"I will fill it "_s.repeated(20000), u"B"_s};
            const QuoteView view(state, shippedFonts());
            EXPECT_GT(view.lineRect(view.lineCount() - 1).top(), size.height() - 60)
                << size.width() << ' ' << textScale;
            EXPECT_LT(view.lineRect(view.lineCount() - 1).top(), size.height() + 160)
                << size.width() << ' ' << textScale;
        }
    }
}

// Reading the outlines of a plane of letters takes far longer than a frame should.
TEST(QuoteViewBounds, ReadsFewOutlinesInEachFrame) {
    for (const TextAnim style : allTextAnims) {
        QuoteViewState state = plainState();
        state.settings.textAnimRaw = rawValue(style);
        for (const QString& text : {u"I will fill it "_s.repeated(200), QString(2000, u'\u6C34')}) {
            state.quote = {text, u"B"_s};
            const QuoteView view(state, shippedFonts());
            drawn(view, 0);
            view.nextMotion(0);
            EXPECT_EQ(view.work().readLetters, 0) << rawValue(style).toStdString();
            qsizetype most = 0; // in a frame
            for (int frame = 1; frame < 45; ++frame) {
                const qsizetype before = view.work().readLetters;
                drawn(view, frame / 30.0);
                most = std::max(most, view.work().readLetters - before);
            }
            EXPECT_LE(most, 150) << rawValue(style).toStdString();

            EXPECT_EQ(drawn(view, 1.5), drawn(QuoteView(state, shippedFonts()), 1.5));
            const QuoteView resting(state, shippedFonts());
            drawn(resting, lineDelay(style, view.lineCount()) + 60);
            EXPECT_EQ(view.work().readLetters, resting.work().readLetters);
            EXPECT_GT(view.work().readLetters, 1200);
        }
    }
}

TEST(QuoteViewBounds, DrawsEveryLetterOfAShortTextWithSixteenMarks) {
    QuoteViewState state = plainState();
    state.quote = {(u"e"_s + QString(300, QChar(0x0301)) + u' ').repeated(200).trimmed(), u"B"_s};
    const QuoteView view(state, shippedFonts());
    qsizetype letters = 0;
    for (qsizetype i = 0; i < view.lineCount(); ++i) {
        letters += view.lineText(i).count(u'e');
        EXPECT_FALSE(view.lineText(i).contains(QString(17, QChar(0x0301))));
    }
    EXPECT_EQ(letters, 200);
}
