// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// How large a quotation is set, and where its lines end.
#include "quotes/collection.h"
#include "screen/quotationfit.h"
#include "screen/quoteview.h"
#include "tests/screen/sceneforscreens.h"
#include "textanim/linebalancing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;
using Element = QuoteView::Element;

namespace {

const QList<double> wishes{0.7, 0.9, 1.0, 1.1, 1.2, 1.27, 1.33, 1.4, 1.5, 1.6};
const QString longText = u"A sentence that goes on and on. "_s.repeated(30);

QuoteViewState stateOf(QSizeF size, const QString& font, const Quote& quote) {
    QuoteViewState state = plainState(size);
    state.settings.fontName = font;
    state.quote = quote;
    return state;
}

double wishedSize(const QuoteViewState& state) {
    return 44 * screenScale(state.mainScreen->height()) * state.settings.sizeScale;
}

// The lines of several words that are higher than one row.
int wrappedLines(const QuoteView& view) {
    const ShapedText row(
        u"x"_s, quoteFont(shippedFonts(), view.state().settings.fontName, view.quoteSize()));
    int wrapped = 0;
    for (qsizetype i = 0; i < view.lineCount(); ++i) {
        wrapped += view.lineRect(i).height() > 1.5 * row.size().height() ? 1 : 0;
    }
    return wrapped;
}

} // namespace

TEST(LargestFittingSize, IsTheWishedOneIfItFits) {
    EXPECT_EQ(largestFittingSize(44.3, 12, [](double) { return true; }), 44.3);
    EXPECT_EQ(largestFittingSize(9, 12, [](double) { return false; }), 9);
    EXPECT_EQ(largestFittingSize(44.3, 12, [](double) { return false; }), 12);
}

TEST(LargestFittingSize, NeverShrinksWithTheWish) {
    const auto fits = [](double size) { return size <= 37.3; };
    double before = 0;
    for (double wished = 20; wished < 70; wished += 0.07) {
        const double size = largestFittingSize(wished, 12, fits);
        EXPECT_TRUE(fits(size));
        EXPECT_LE(size, wished);
        EXPECT_GE(size, before) << wished;
        before = size;
    }
    EXPECT_NEAR(before, 37.3, 1e-9);
}

// What fits in a large size is preferred to what fits in smaller ones only.
TEST(LargestFittingSize, SearchesFromAbove) {
    const auto fits = [](double size) { return (size > 29.8 && size <= 30.2) || size <= 20; };
    EXPECT_NEAR(largestFittingSize(44, 12, fits), 30.2, 1e-9);
    EXPECT_NEAR(largestFittingSize(25, 12, fits), 20, 1e-9);
}

TEST(QuotationSize, NeverShrinksWithTheWish) {
    int limited = 0;
    for (const QSizeF size : {QSizeF(1512, 982), QSizeF(2560, 1440)}) {
        for (const QString& font : {u"fraunces"_s, u"mono"_s}) {
            for (qsizetype i = 0; i < quoteCount; i += 8) {
                QuoteViewState state = stateOf(size, font, quotes[static_cast<size_t>(i)]);
                QuoteView view(state, shippedFonts());
                double before = 0;
                for (const double wish : wishes) {
                    state.settings.sizeScale = wish;
                    view.update(state, 1);
                    EXPECT_GE(view.quoteSize(), before)
                        << i << ' ' << font.toStdString() << ' ' << wish;
                    EXPECT_LE(view.quoteSize(), wishedSize(state) + 1e-9);
                    before = view.quoteSize();
                }
                limited += before < wishedSize(state) - 1 ? 1 : 0;
            }
        }
    }
    EXPECT_GT(limited, 4);
}

TEST(QuotationSize, NeverShrinksWithTheWishForLongTexts) {
    for (const QString& text : {longText, u"学而时习之不亦说乎"_s.repeated(40),
                                u"A-"_s.repeated(400), longText.left(500)}) {
        for (const QString& style : {u"fade"_s, u"handwrite"_s}) {
            QuoteViewState state = stateOf({1512, 982}, u"serif"_s, {text, u"Anonymous"_s});
            state.settings.textAnimRaw = style;
            double before = 0;
            for (const double wish : wishes) {
                state.settings.sizeScale = wish;
                const QuoteView view(state, shippedFonts());
                EXPECT_GE(view.quoteSize(), before) << text.left(10).toStdString() << ' ' << wish;
                before = view.quoteSize();
            }
        }
    }
}

TEST(QuotationSize, FillsTheHeightWithLinesCutForIt) {
    for (const double wish : {1.0, 1.6}) {
        QuoteViewState state = stateOf({1512, 982}, u"fraunces"_s, {longText, u"Anonymous"_s});
        state.settings.sizeScale = wish;
        const QuoteView view(state, shippedFonts());
        ASSERT_LT(view.quoteSize(), 44);
        const QStringList lines =
            balancedLines(longText, wrapTarget(1512, 0, view.quoteSize() / 44));
        ASSERT_EQ(view.lineCount(), lines.size());
        for (qsizetype i = 0; i < lines.size(); ++i) {
            EXPECT_EQ(view.lineText(i), lines[i]);
        }
        EXPECT_GE(view.rect(Element::Mark).top(), view.rect(Element::Today).bottom() + 7);
        EXPECT_LE(view.rect(Element::Author).bottom(), view.rect(Element::Hint).top() - 7);
    }
}

TEST(QuotationSize, LeavesTheAuthorAsWished) {
    const double usual =
        QuoteView(stateOf({1512, 982}, u"fraunces"_s, {u"Short"_s, u"Anonymous"_s}), shippedFonts())
            .rect(Element::Author)
            .height();
    for (const double wish : {1.0, 1.3}) {
        QuoteViewState state = stateOf({1512, 982}, u"fraunces"_s, {longText, u"Anonymous"_s});
        state.settings.sizeScale = wish;
        const QuoteView view(state, shippedFonts());
        ASSERT_LT(view.quoteSize(), 44);
        ASSERT_GT(view.quoteSize(), 24);
        EXPECT_NEAR(view.rect(Element::Author).height(), usual * wish, 1e-6);
    }
}

TEST(QuotationSize, LetsAWordTooWideForTheColumnShrinkAllLines) {
    const QuoteView view(stateOf({1512, 982}, u"fraunces"_s,
                                 {u"A word: "_s + QString(60, u'm') + u" and more"_s, u"B"_s}),
                         shippedFonts());
    EXPECT_LT(view.quoteSize(), 44);
    double height = view.lineRect(0).height();
    for (qsizetype i = 0; i < view.lineCount(); ++i) {
        EXPECT_NEAR(view.lineRect(i).height(), height, 1e-6);
        EXPECT_LE(view.lineRect(i).width(), 1000);
    }
}

TEST(BalancedLines, OfWideFacesLeaveNoWordOver) {
    for (const QSizeF size : {QSizeF(1512, 982), QSizeF(2560, 1440)}) {
        for (const QString& style : {u"fade"_s, u"handwrite"_s}) {
            int wrapped = 0;
            for (const BuiltinQuote& quote : quotes) {
                QuoteViewState state = stateOf(size, u"mono"_s, quote);
                state.settings.textAnimRaw = style;
                wrapped += wrappedLines(QuoteView(state, shippedFonts())) > 0 ? 1 : 0;
            }
            EXPECT_EQ(wrapped, 0) << size.width() << ' ' << style.toStdString();
        }
    }
}

TEST(BalancedLines, AreCutForTheNextTargetThatFits) {
    for (const BuiltinQuote& each : quotes) {
        const QuoteViewState state = stateOf({1512, 982}, u"mono"_s, each);
        const QuoteView view(state, shippedFonts());
        const QString text(each.text);
        QStringList lines;
        for (int target = 41; target >= 16; --target) {
            lines = balancedLines(text, target);
            const auto fits = [](const QString& line) {
                const TextFont font = quoteFont(shippedFonts(), u"mono"_s, 44);
                return ShapedText(line, font).size().width() <= 1000;
            };
            if (std::ranges::all_of(lines, fits)) {
                break;
            }
        }
        QStringList shown;
        for (qsizetype i = 0; i < view.lineCount(); ++i) {
            shown.append(view.lineText(i));
        }
        EXPECT_EQ(shown, lines);
    }
}

// In every style a text without spaces has the letters and rows of the others.
TEST(TextWithoutSpaces, IsWrittenAsItIsSet) {
    const QString text =
        u"学而时习之不亦说乎有朋自远方来不亦乐乎人不知而不愠不亦君子乎"_s.repeated(5);
    QuoteViewState state = stateOf({1512, 982}, u"fraunces"_s, {text, u"孔子"_s});
    const QuoteView type(state, shippedFonts());
    ASSERT_EQ(type.lineCount(), 1);
    for (const QString& style : {u"handwrite"_s, u"typewriter"_s, u"rise"_s, u"blur"_s}) {
        state.settings.textAnimRaw = style;
        const QuoteView view(state, shippedFonts());
        EXPECT_EQ(view.quoteSize(), type.quoteSize()) << style.toStdString();
        EXPECT_NEAR(view.lineRect(0).height(), type.lineRect(0).height(), 1);
        EXPECT_NEAR(view.lineRect(0).width(), type.lineRect(0).width(), 1);
        EXPECT_GT(view.quoteSize(), 30);
    }
}
