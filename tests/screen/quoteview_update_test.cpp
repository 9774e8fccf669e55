// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Tests of what a new state changes in a quote view, and what it leaves alone.
#include "screen/quoteview.h"

#include "base/graphemes.h"
#include "tests/screen/drawnview.h"

#include <QSet>
#include <gtest/gtest.h>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;
using Element = QuoteView::Element;

TEST(LineIdentity, IsMadeOfAnimationIndexAndLength) {
    EXPECT_EQ(lineIdentity(u"fade"_s, 2, u"abc"_s), u"fade-2-3"_s);
    EXPECT_EQ(lineIdentity(u""_s, 0, u""_s), u"-0-0"_s);
    EXPECT_EQ(lineIdentity(u"x"_s, 11, u"e\u0301👨‍👩‍👧"_s), u"x-11-2"_s);
}

TEST(QuoteView, RestartsALineOnlyWhenItsIdentityChanges) {
    QuoteViewState state = plainState();
    state.quote = {threeLines, u"Anonymous"_s};
    QuoteView view(state, shippedFonts());
    const double ruleAt = view.closing().rule.delay;

    state.palette = Palette::all()[7];
    state.settings.fontName = u"mono"_s;
    view.update(state, 5);
    EXPECT_EQ(view.lineAppearedAt(0), 0);
    EXPECT_EQ(view.lineAppearedAt(2), 0);

    state.settings.textAnimRaw = u"rise"_s;
    view.update(state, 7);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(view.lineAppearedAt(i), 7);
    }
    state.settings.textAnimRaw = u"no such thing"_s; // drawn as fade, but with another identity
    view.update(state, 8);
    EXPECT_EQ(view.lineAppearedAt(0), 8);
    EXPECT_EQ(view.closing().rule.delay, ruleAt);
}

TEST(QuoteView, LaysOutOnlyWhatDependsOnAChange) {
    QuoteViewState state = plainState();
    state.quote = {threeLines, u"Anonymous"_s};
    QuoteView view(state, shippedFonts());
    ASSERT_EQ(view.lineCount(), 3);
    QuoteView::Work before = view.work();
    const auto expectWork = [&](const char* what, int measurements, int layouts) {
        view.update(state, 5);
        EXPECT_EQ(view.work().measurements - before.measurements, measurements) << what;
        EXPECT_EQ(view.work().layouts - before.layouts, layouts) << what;
        before = view.work();
    };
    expectWork("nothing", 0, 0);
    state.settings.vignette = 0.9;
    expectWork("vignette", 0, 0);
    state.settings.grainOn = false;
    expectWork("grain", 0, 0);
    state.settings.transparency = 0.5;
    expectWork("transparency", 0, 0);
    state.settings.liquidGlass = false;
    expectWork("glass", 0, 0);
    state.settings.screenAnimRaw = u"zoom"_s;
    expectWork("screen animation", 0, 0);
    state.settings.paletteIndex = 7;
    state.palette = Palette::all()[7];
    expectWork("palette", 0, 0);
    state.settings.bgImagePath = u"/photo"_s;
    state.palette = Palette::photo();
    expectWork("photo", 0, 0);
    state.settings.textAnimRaw = u"rise"_s;
    expectWork("text animation: the lines", 0, 3);
    state.settings.fontName = u"serif"_s;
    expectWork("font: lines, mark, sample", 3, 5);
    state.quote.author = u"Somebody"_s;
    expectWork("author", 3, 1);
    state.moment.unixSeconds += 3600.0 * 5;
    expectWork("hour: the greeting", 0, 1);
    state.settings.sizeScale = 1.01;
    expectWork("size: everything", 0, 9);
}

TEST(QuoteView, DrawsAfterAnUpdateWhatAFreshViewDraws) {
    QuoteViewState state = plainState({1024, 600});
    state.quote = {threeLines, u"Anonymous"_s};
    for (const TextAnim style : allTextAnims) {
        state.settings.textAnimRaw = rawValue(style);
        state.palette = Palette::all()[0];
        QuoteView view(state, shippedFonts());
        drawn(view, 1.2); // caches pictures in the old colours
        drawn(view, 9);
        drawn(view, 9);
        state.palette = Palette::all()[7];
        view.update(state, 1);
        const QuoteView fresh(state, shippedFonts());
        EXPECT_EQ(drawn(view, 1.2), drawn(fresh, 1.2)) << rawValue(style).toStdString();
        EXPECT_EQ(drawn(view, 9), drawn(fresh, 9)) << rawValue(style).toStdString();
    }
}

TEST(QuoteView, ATextOfTheSameLengthDoesNotRestartItsLine) {
    QuoteViewState state = plainState();
    state.quote = {u"aaaa bbbb"_s, u"A"_s};
    QuoteView view(state, shippedFonts());
    state.quote = {u"cccc dddd"_s, u"B"_s}; // as many characters
    view.update(state, 3);
    EXPECT_EQ(view.lineText(0), u"cccc dddd"_s);
    EXPECT_EQ(view.lineAppearedAt(0), 0);
    state.quote = {u"cccc ddddd"_s, u"B"_s};
    view.update(state, 4);
    EXPECT_EQ(view.lineAppearedAt(0), 4);
}

TEST(QuoteView, ANewSizeRestartsOnlyLinesWhoseLengthChanges) {
    QuoteViewState state = plainState();
    state.quote = {threeLines, u"Anonymous"_s};
    QuoteView view(state, shippedFonts());
    QSet<QString> kinds; // what happens to a line
    for (int percent = 80; percent < 160; percent += 2) {
        const double scale = percent / 100.0;
        QStringList before;
        std::vector<double> appeared;
        for (int i = 0; i < view.lineCount(); ++i) {
            before += view.lineText(i);
            appeared.push_back(view.lineAppearedAt(i));
        }
        state.settings.sizeScale = scale;
        const double now = 10 + scale;
        view.update(state, now);
        for (int i = 0; i < view.lineCount(); ++i) {
            const bool same =
                i < before.size() && characterCount(before[i]) == characterCount(view.lineText(i));
            EXPECT_EQ(view.lineAppearedAt(i), same ? appeared[static_cast<size_t>(i)] : now)
                << "line " << i << " at " << scale;
            kinds += same ? u"kept"_s : u"anew"_s;
        }
    }
    EXPECT_EQ(kinds.size(), 2);
}

// Colour, typeface and another text of the same length apply at once, at the
// stage that the line has reached, in every style.
TEST(QuoteView, NewLooksDoNotRestartTheEntrance) {
    for (const TextAnim kind : allTextAnims) {
        QuoteViewState state = plainState({1024, 600});
        state.settings.textAnimRaw = rawValue(kind);
        state.quote = {u"aaaa bbbb"_s, u"A"_s};
        QuoteView view(state, shippedFonts());
        const double middle = kind == TextAnim::Handwrite ? 1.0 : 0.8;
        const QImage first = drawn(view, middle);

        state.palette = Palette::all()[7];
        state.settings.fontName = u"mono"_s;
        state.quote.text = u"cccc dddd"_s;
        view.update(state, middle);
        EXPECT_EQ(view.lineAppearedAt(0), 0);
        const QImage changed = drawn(view, middle);
        EXPECT_NE(changed, first);
        EXPECT_EQ(changed, drawn(QuoteView(state, shippedFonts()), middle))
            << rawValue(kind).toStdString();
    }
}

TEST(QuoteView, DoesNotReplayRuleAndAuthorForALateQuotation) {
    QuoteViewState state = plainState();
    state.quote = {u"Short"_s, u"A"_s};
    QuoteView view(state, shippedFonts());
    const ClosingEntrances before = view.closing();
    state.quote = {threeLines + u" "_s + threeLines, u"Somebody Else"_s};
    state.settings.textAnimRaw = u"handwrite"_s;
    view.update(state, 6);
    EXPECT_EQ(view.closing().rule.delay, before.rule.delay);
    EXPECT_EQ(view.closing().author.delay, before.author.delay);
    EXPECT_EQ(view.lineAppearedAt(1), 6);
    // The author is visible while the new lines have not begun.
    const QRect place = view.rect(Element::Author).toAlignedRect();
    EXPECT_FALSE(inkWithin(drawn(view, 6), place).isEmpty());
    const QRect line = view.lineRect(1).toAlignedRect();
    EXPECT_EQ(inkWithin(drawn(view, 6), line), QRect());
}
