// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// How large a quotation is set, and where its lines end.
#include "quotes/collection.h"
#include "screen/quoteview.h"
#include "tests/fakes/glyphs.h"
#include "tests/screen/sceneforscreens.h"
#include "textanim/linebalancing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;
using Element = QuoteView::Element;

namespace {

const QStringList faces{u"fraunces"_s, u"serif"_s, u"sans"_s, u"rounded"_s, u"mono"_s};
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

QStringList shownLines(const QuoteView& view) {
    QStringList lines;
    for (qsizetype i = 0; i < view.lineCount(); ++i) {
        lines.append(view.lineText(i));
    }
    return lines;
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

bool isBetweenHeaderAndHint(const QuoteView& view) {
    constexpr double least = 14.5; // points, of which some are lost to whole pixels
    return view.rect(Element::Mark).top() >= view.rect(Element::Today).bottom() + least &&
           view.rect(Element::Author).bottom() <= view.rect(Element::Hint).top() - least;
}

// Expects that no larger wish gives smaller letters. Returns whether the largest wish is limited.
bool isLimited(QuoteViewState state) {
    QuoteView view(state, shippedFonts());
    double before = 0;
    for (const double wish : wishes) {
        state.settings.sizeScale = wish;
        view.update(state, 1);
        EXPECT_GE(view.quoteSize(), before) << wish;
        EXPECT_LE(view.quoteSize(), wishedSize(state) + 1e-9) << wish;
        before = view.quoteSize();
    }
    return before < wishedSize(state) - 1;
}

} // namespace

TEST(QuotationSize, NeverShrinksWithTheWish) {
    int limited = 0;
    for (const QSizeF size : {QSizeF(1512, 982), QSizeF(2560, 1440)}) {
        for (const QString& font : faces) {
            for (qsizetype i = 7; i < quoteCount; i += 16) {
                SCOPED_TRACE(testing::Message() << i << ' ' << font.toStdString());
                limited += isLimited(stateOf(size, font, quotes[static_cast<size_t>(i)])) ? 1 : 0;
            }
        }
    }
    EXPECT_GT(limited, 4);
}

TEST(QuotationSize, NeverShrinksWithTheWishForLongTexts) {
    for (const QString& text : {longText, u"学而时习之不亦说乎"_s.repeated(40),
                                u"A-"_s.repeated(400), longText.left(500)}) {
        EXPECT_TRUE(hasGlyphs(text, shippedFace(u"serif"_s)));
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

// The settings file may hold more than can be chosen.
TEST(QuotationSize, LeavesRoomForTheAuthorUnderAnyWish) {
    for (const double wish : {1.6, 2.0, 5.0, 16.0}) {
        QuoteViewState state = stateOf({2560, 1440}, u"fraunces"_s, quotes[39]);
        state.settings.sizeScale = wish;
        const QuoteView view(state, shippedFonts());
        EXPECT_LE(view.rect(QuoteView::Element::Author).bottom(),
                  view.rect(QuoteView::Element::Hint).top())
            << wish;
        EXPECT_LE(view.rect(QuoteView::Element::Greeting).right(),
                  view.rect(QuoteView::Element::Today).left())
            << wish;
    }
}

TEST(QuotationSize, NeverShrinksWithTheWishForLongAuthors) {
    const QString names = u"The Society of the Friends of Long Names, "_s.repeated(24);
    const QString wideWords = (QString(106, u'm') + u' ').repeated(9);
    int limited = 0;
    for (const QSizeF size : {QSizeF(800, 600), QSizeF(1512, 982), QSizeF(2560, 1440)}) {
        for (const QString& author : {names, wideWords}) {
            for (const QString& font : {u"fraunces"_s, u"mono"_s}) {
                SCOPED_TRACE(testing::Message()
                             << size.width() << ' ' << author.left(3).toStdString() << ' '
                             << font.toStdString());
                limited += isLimited(stateOf(size, font, {quotes[39].text, author})) ? 1 : 0;
            }
        }
    }
    EXPECT_GT(limited, 4);
}

// Wishes from 60 to 160 percent, for texts that a tall screen cannot hold.
TEST(QuotationSize, NeverShrinksWithTheWishForRepeatedTexts) {
    const Quote quote = quotes[39];
    for (const int times : {1, 10, 20, 40}) {
        for (const QString& font : faces) {
            QuoteViewState state = stateOf({2560, 1440}, font, quote);
            state.quote.text = QStringList(times, quote.text).join(u' ');
            QuoteView view(state, shippedFonts());
            double before = 0;
            for (int percent = 60; percent <= 160; percent += 4) {
                state.settings.sizeScale = percent / 100.0;
                view.update(state, 1);
                EXPECT_GE(view.quoteSize(), before)
                    << font.toStdString() << ' ' << times << ' ' << percent;
                before = view.quoteSize();
                if (before > measure::leastQuoteSize) {
                    EXPECT_TRUE(isBetweenHeaderAndHint(view))
                        << font.toStdString() << ' ' << times << ' ' << percent;
                }
            }
        }
    }
}

TEST(QuotationSize, DoesNotDependOnTheStyle) {
    QuoteViewState state = stateOf({1512, 982}, u"serif"_s, {longText, u"Anonymous"_s});
    const double size = QuoteView(state, shippedFonts()).quoteSize();
    for (const TextAnim style : allTextAnims) {
        state.settings.textAnimRaw = rawValue(style);
        EXPECT_EQ(QuoteView(state, shippedFonts()).quoteSize(), size);
    }
}

TEST(QuotationSize, HoldsTextsOfStrangeWords) {
    const QString marks(7000, QChar(0x0301));
    for (const QString& text : {u"ab c"_s + marks, u" "_s + marks + u"  b "_s, u"\n \n a"_s,
                                u"   "_s, QString(QChar(0)) + u" a \u200B b"_s,
                                u"abc \u202E def \u05D0\u05D1 ghi"_s.repeated(60)}) {
        QuoteViewState state = stateOf({1512, 982}, u"fraunces"_s, {text, text});
        for (const double wish : {0.7, 1.6}) {
            state.settings.sizeScale = wish;
            EXPECT_TRUE(isBetweenHeaderAndHint(QuoteView(state, shippedFonts()))) << wish;
        }
    }
}

// Several words are measured at once, and no text for more lines than the column holds.
TEST(QuotationSize, IsFoundWithFewMeasurements) {
    for (const QString& text : {u"a "_s.repeated(4000), longText, longText.repeated(9),
                                u"\uFDFD "_s.repeated(4000), QString(4000, u'w')}) {
        QuoteViewState state = stateOf({1512, 982}, u"fraunces"_s, {text, u"B"_s});
        QuoteView view(state, shippedFonts());
        const int first = view.work().measurements;
        const qsizetype lines = balancedLines(view.state().quote.text).size();
        EXPECT_LE(first, 3 + 3 * lines) << text.left(9).toStdString();
        for (const double wish : wishes) {
            state.settings.sizeScale = wish;
            view.update(state, 1);
        }
        EXPECT_LE(view.work().measurements - first, 2 * lines) << text.left(9).toStdString();
    }
}

// Their words tell that such lines are narrow.
TEST(QuotationSize, MeasuresNoLineThatIsClearlyNarrowerThanTheColumn) {
    QuoteViewState state = stateOf({1512, 982}, u"fraunces"_s, {u"a "_s.repeated(4000), u"B"_s});
    EXPECT_EQ(QuoteView(state, shippedFonts()).work().measurements, 3);
}

TEST(QuotationSize, FillsTheHeightWithLinesCutForIt) {
    for (const double wish : {1.0, 1.6}) {
        QuoteViewState state = stateOf({1512, 982}, u"fraunces"_s, {longText, u"Anonymous"_s});
        state.settings.sizeScale = wish;
        const QuoteView view(state, shippedFonts());
        ASSERT_LT(view.quoteSize(), 44);
        const QStringList lines =
            balancedLines(longText, wrapTarget(1512, 0, view.quoteSize() / 44));
        EXPECT_EQ(shownLines(view), lines);
        EXPECT_TRUE(isBetweenHeaderAndHint(view));
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
    for (const QSizeF size : {QSizeF(1512, 982), QSizeF(2560, 1440), QSizeF(1280, 720)}) {
        for (const double wish : {0.7, 1.0, 1.6}) {
            int wrapped = 0;
            for (const BuiltinQuote& quote : quotes) {
                QuoteViewState state = stateOf(size, u"mono"_s, quote);
                state.settings.sizeScale = wish;
                wrapped += wrappedLines(QuoteView(state, shippedFonts())) > 0 ? 1 : 0;
            }
            EXPECT_EQ(wrapped, 0) << size.width() << ' ' << wish;
        }
    }
}

TEST(BalancedLines, AreKeptWhereTheyFitExactly) {
    for (const QString& font : faces.first(4)) { // not in the widest
        QuoteViewState state = stateOf({1512, 982}, font, {longText.left(124).trimmed(), u"B"_s});
        const QStringList lines = balancedLines(state.quote.text, 41);
        double widest = 0;
        for (const QString& line : lines) {
            widest = std::max(widest,
                              ShapedText(line, quoteFont(shippedFonts(), font, 44)).size().width());
        }
        state.mainScreen = QSizeF(1512, 982);
        state.size.setWidth(widest + 180 + 1e-6);
        EXPECT_EQ(shownLines(QuoteView(state, shippedFonts())), lines) << font.toStdString();
        state.size.setWidth(widest + 180 - 0.1);
        EXPECT_NE(shownLines(QuoteView(state, shippedFonts())), lines) << font.toStdString();
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
        EXPECT_EQ(shownLines(view), lines);
    }
}

// In every style a text without spaces has the letters and rows of the others.
TEST(TextWithoutSpaces, IsWrittenAsItIsSet) {
    const QString text =
        u"学而时习之不亦说乎有朋自远方来不亦乐乎人不知而不愠不亦君子乎"_s.repeated(5);
    QuoteViewState state = stateOf({1512, 982}, u"fraunces"_s, {text, u"孔子"_s});
    const QuoteView type(state, shippedFonts());
    ASSERT_EQ(type.lineCount(), 1);
    EXPECT_TRUE(hasGlyphs(text, shippedFace(u"fraunces"_s)));
    for (const QString& style : {u"handwrite"_s, u"typewriter"_s, u"rise"_s, u"blur"_s}) {
        state.settings.textAnimRaw = style;
        const QuoteView view(state, shippedFonts());
        EXPECT_EQ(view.quoteSize(), type.quoteSize()) << style.toStdString();
        EXPECT_NEAR(view.lineRect(0).height(), type.lineRect(0).height(), 1);
        EXPECT_NEAR(view.lineRect(0).width(), type.lineRect(0).width(), 1);
        EXPECT_GT(view.quoteSize(), 30);
    }
}
