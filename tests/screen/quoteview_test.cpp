// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/quoteview.h"

#include "base/graphemes.h"
#include "tests/screen/sceneforscreens.h"

#include <QPainter>
#include <QSet>
#include <gtest/gtest.h>

#include <cmath>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;
using Element = QuoteView::Element;

namespace {

const QString threeLines =
    u"It is not the mountain we conquer but ourselves, and the path is where we learn to walk."_s;

QImage drawn(const QuoteView& view, double seconds) {
    const QSizeF pixels = view.state().size * view.state().devicePixelRatio;
    QImage image(pixels.toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(view.state().devicePixelRatio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    view.paint(painter, seconds, QRectF(QPointF(), view.state().size));
    return image;
}

// The bounds of the light ink within a part, device pixels; shadows are black.
QRect inkWithin(const QImage& image, const QRect& part, int least = 24) {
    QRect ink;
    const QRect inside = part.intersected(image.rect());
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            if (qGreen(image.pixel(x, y)) >= least) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

} // namespace

TEST(LineIdentity, IsMadeOfAnimationIndexAndLength) {
    EXPECT_EQ(lineIdentity(u"fade"_s, 2, u"abc"_s), u"fade-2-3"_s);
    EXPECT_EQ(lineIdentity(u""_s, 0, u""_s), u"-0-0"_s);
    EXPECT_EQ(lineIdentity(u"x"_s, 11, u"e\u0301👨‍👩‍👧"_s), u"x-11-2"_s);
}

TEST(QuoteView, PlacesEverythingByTheNumbers) {
    QuoteViewState state = plainState();
    state.quote = {threeLines, u"Anonymous"_s};
    const QuoteView view(state, shippedFonts());
    ASSERT_EQ(view.lineCount(), 3);

    EXPECT_EQ(view.rect(Element::Greeting).left(), 166 + 46);
    EXPECT_NEAR(view.rect(Element::Greeting).top(), 38, 0.5);
    EXPECT_NEAR(view.rect(Element::Today).right() - 2.2, 1512 - 166 - 46, 0.6);
    EXPECT_NEAR(view.rect(Element::Hint).bottom(), 982 - 40, 0.5);
    EXPECT_NEAR(view.rect(Element::Hint).center().x() - 1, 756, 0.6);

    const QRectF mark = view.rect(Element::Mark);
    EXPECT_NEAR(mark.center().x(), 756, 0.6);
    EXPECT_NEAR(view.lineRect(0).top() - mark.bottom(), 30, 1.1);
    EXPECT_NEAR(view.lineRect(1).top() - view.lineRect(0).bottom(), 12, 1.1);
    EXPECT_NEAR(view.rect(Element::Rule).top() - view.lineRect(2).bottom(), 46, 1.1);
    EXPECT_NEAR(view.rect(Element::Author).top() - view.rect(Element::Rule).bottom(), 22, 1.1);
    EXPECT_EQ(view.rect(Element::Rule).size(), QSizeF(56, 1));

    double block = 0;
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(view.lineRect(i).left(), view.lineRect(0).left());
        block = std::max(block, view.lineRect(i).width());
    }
    EXPECT_NEAR(view.lineRect(0).left() + block / 2, 756, 0.6);
    const double height = view.rect(Element::Author).bottom() - mark.top();
    EXPECT_NEAR(mark.top() + height / 2, 491, 1);
    EXPECT_EQ(view.columnScale(), 1);
}

TEST(QuoteView, KeepsClearOfTheInspector) {
    QuoteViewState state = plainState({1440, 900});
    state.quote = {threeLines, u"Anonymous"_s};
    state.sideInset = 320;
    const QuoteView view(state, shippedFonts());
    EXPECT_LE(view.rect(Element::Today).right(), 1440 - 320 - 46 + 3);
    EXPECT_NEAR(view.rect(Element::Mark).center().x(), 560, 0.6);
    EXPECT_NEAR(view.rect(Element::Hint).center().x() - 1, 560, 0.6);
    for (int i = 0; i < view.lineCount(); ++i) {
        EXPECT_LE(view.lineRect(i).right(), 1120 - 90 + 1);
    }
}

TEST(QuoteView, ScalesWithTheMainScreenAndTheUser) {
    QuoteViewState state = plainState();
    state.quote = {u"One"_s, u"Two"_s};
    const double base = QuoteView(state, shippedFonts()).lineRect(0).height();
    const auto heightWith = [&](std::optional<QSizeF> screen, double sizeScale) {
        state.mainScreen = screen;
        state.settings.sizeScale = sizeScale;
        return QuoteView(state, shippedFonts()).lineRect(0).height() / base;
    };
    EXPECT_NEAR(heightWith(QSizeF(1512, 700), 1), 0.85, 0.001);
    EXPECT_NEAR(heightWith(QSizeF(1512, 2000), 1), 1.55, 0.001);
    EXPECT_NEAR(heightWith(std::nullopt, 1), 1, 0.001);
    EXPECT_NEAR(heightWith(QSizeF(1512, 982), 1.3), 1.3, 0.001);
}

TEST(QuoteView, RestartsLinesWithTheirIdentityOnly) {
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
    const auto expectWork = [&](const char* what, int cuts, int layouts) {
        view.update(state, 5);
        EXPECT_EQ(view.work().cuts - before.cuts, cuts) << what;
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
    expectWork("font: lines, mark, sample", 0, 5);
    state.quote.author = u"Somebody"_s;
    expectWork("author", 1, 1);
    state.moment.unixSeconds += 3600.0 * 5;
    expectWork("hour: the greeting", 0, 1);
    state.settings.sizeScale = 1.01;
    expectWork("size: everything", 1, 9);
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

TEST(QuoteView, RestartsOnlyTheLinesThatANewWrappingChanges) {
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

TEST(QuoteView, ASizeRestartsOnlyTheLinesThatItWrapsAnew) {
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
TEST(QuoteView, AnUnchangedIdentityTakesNewLooksWhereItStands) {
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

TEST(QuoteView, BringsEachElementInAtItsTime) {
    QuoteViewState state = plainState({1280, 720});
    state.quote = {u"Now"_s, u"Then"_s};
    const QuoteView view(state, shippedFonts());
    struct Row {
        Element element;
        double begins;
    };
    const double revealed = 0.16 + 0.55;
    for (const Row row : {Row{Element::Mark, 0.35}, Row{Element::Greeting, 0.9},
                          Row{Element::Today, 0.9}, Row{Element::Rule, revealed + 0.1},
                          Row{Element::Author, revealed + 0.25}, Row{Element::Hint, 2.6}}) {
        const QRect place = view.rect(row.element).toAlignedRect();
        EXPECT_TRUE(inkWithin(drawn(view, row.begins), place, 1).isEmpty()) << row.begins;
        EXPECT_FALSE(inkWithin(drawn(view, row.begins + 0.5), place, 4).isEmpty()) << row.begins;
    }
    EXPECT_TRUE(view.nextMotion(0).has_value());
    EXPECT_DOUBLE_EQ(*view.nextMotion(0), 0.35);
    EXPECT_DOUBLE_EQ(*view.nextMotion(0.4), 0.4);
    EXPECT_FALSE(view.nextMotion(10).has_value());
}

TEST(QuoteView, NamesEverythingThatChanges) {
    for (const QString& animation :
         {u"fade"_s, u"handwrite"_s, u"typewriter"_s, u"rise"_s, u"blur"_s}) {
        QuoteViewState state = plainState({1024, 600});
        state.settings.textAnimRaw = animation;
        state.quote = {u"The quiet morning asks nothing of anyone"_s, u"Nobody"_s};
        const QuoteView view(state, shippedFonts());
        double from = 0;
        for (const double to : {0.2, 0.5, 0.62, 0.7, 0.9, 1.3, 1.31, 2.0, 2.7, 3.9, 9.0}) {
            const QImage before = drawn(view, from);
            const QImage after = drawn(view, to);
            const QRegion changed = view.changedBetween(from, to);
            int missed = 0;
            for (int y = 0; y < before.height(); ++y) {
                for (int x = 0; x < before.width(); ++x) {
                    missed +=
                        before.pixel(x, y) != after.pixel(x, y) && !changed.contains(QPoint(x, y))
                            ? 1
                            : 0;
                }
            }
            EXPECT_EQ(missed, 0) << animation.toStdString() << ' ' << from << " to " << to;
            from = to;
        }
        EXPECT_TRUE(view.changedBetween(20, 30).isEmpty());
    }
}

TEST(QuoteView, DrawsAPartAsItDrawsTheWhole) {
    QuoteViewState state = plainState({1024, 600});
    state.quote = {threeLines, u"Anonymous"_s};
    const QuoteView view(state, shippedFonts());
    const QImage whole = drawn(view, 0.95);
    const QRect part(300, 200, 211, 97);
    QImage image(whole.size(), whole.format());
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setClipRect(part);
    view.paint(painter, 0.95, part);
    painter.end();
    EXPECT_EQ(image.copy(part), whole.copy(part));
}

TEST(QuoteView, ScalesAQuotationTooLongAsAWhole) {
    QuoteViewState state = plainState();
    state.quote = {u"A sentence that goes on and on. "_s.repeated(30), u"Anonymous"_s};
    const QuoteView view(state, shippedFonts());
    EXPECT_LT(view.columnScale(), 1);
    EXPECT_GT(view.columnScale(), 12.0 / 44);
    EXPECT_GE(view.rect(Element::Mark).top(), view.rect(Element::Greeting).bottom());
    EXPECT_LE(view.rect(Element::Author).bottom(), view.rect(Element::Hint).top());
    const int target = wrapTarget(1512, 0, 1);
    EXPECT_GE(view.lineCount(), 960 / (target + 3));
    EXPECT_FALSE(inkWithin(drawn(view, 20), view.rect(Element::Author).toAlignedRect()).isEmpty());
}

TEST(QuoteView, FadesOutWhatDoesNotFitInTwelvePoints) {
    QuoteViewState state = plainState();
    state.quote = {u"Thousands of characters may arrive here. "_s.repeated(200), u"Anonymous"_s};
    const QuoteView view(state, shippedFonts());
    EXPECT_DOUBLE_EQ(view.columnScale(), 12.0 / 44);
    const QImage image = drawn(view, 100);
    const int hintTop = static_cast<int>(view.rect(Element::Hint).top());
    EXPECT_TRUE(inkWithin(image, QRect(0, hintTop - 8, 1512, 7), 2).isEmpty());
    EXPECT_FALSE(inkWithin(image, QRect(0, hintTop - 120, 1512, 30)).isEmpty());
    EXPECT_FALSE(inkWithin(image, view.rect(Element::Hint).toAlignedRect()).isEmpty());
}

TEST(QuoteView, WrapsALineTooWideInsideItsEntry) {
    QuoteViewState state = plainState({1024, 600});
    state.settings.fontName = u"mono"_s;
    state.settings.sizeScale = 1.6;
    state.quote = {u"Wheresoever you go, go with all your heart and nothing less"_s,
                   u"Confucius"_s};
    const QuoteView view(state, shippedFonts());
    const double width = columnWidth(contentBox({1024, 600}, 0));
    for (int i = 0; i < view.lineCount(); ++i) {
        EXPECT_LE(view.lineRect(i).width(), width + 0.01);
    }
    state.quote = {QString(400, u'w'), u"One Word"_s};
    const QuoteView word(state, shippedFonts());
    ASSERT_EQ(word.lineCount(), 1);
    EXPECT_LE(word.lineRect(0).width(), width + 0.01);
    const QRect ink = inkWithin(drawn(word, 20), word.lineRect(0).toAlignedRect());
    EXPECT_GT(ink.width(), width * 0.95);
}

TEST(QuoteView, AlignsRightToLeftTextAtItsOwnLeadingEdge) {
    QuoteViewState state = plainState();
    state.quote = {u"السلام عليكم ورحمة الله وبركاته وكل يوم هو بداية جديدة لمن "
                   "أراد أن يمشي في طريقه بهدوء وصبر"_s,
                   u"A"_s};
    const QuoteView view(state, shippedFonts());
    ASSERT_GT(view.lineCount(), 1);
    for (int i = 1; i < view.lineCount(); ++i) {
        EXPECT_NEAR(view.lineRect(i).right(), view.lineRect(0).right(), 1.01);
    }
}

TEST(QuoteView, StandsOnWholePixels) {
    for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
        QuoteViewState state = plainState();
        state.devicePixelRatio = ratio;
        state.quote = {threeLines, u"Anonymous"_s};
        const QuoteView view(state, shippedFonts());
        const QRectF rule = view.rect(Element::Rule);
        EXPECT_NEAR(rule.top() * ratio, std::round(rule.top() * ratio), 1e-6);
        EXPECT_NEAR(rule.height() * ratio, std::round(rule.height() * ratio), 1e-6);
        const QImage image = drawn(view, 20);
        const QPoint middle = (rule.center() * ratio).toPoint();
        int rows = 0;
        for (int y = middle.y() - 4; y <= middle.y() + 4; ++y) {
            rows += qGreen(image.pixel(middle.x(), y)) > 8 ? 1 : 0;
        }
        EXPECT_EQ(rows, static_cast<int>(std::floor(ratio))) << ratio;
    }
}

TEST(QuoteView, SpellsTheAuthorAlikeInEveryLocale) {
    QuoteViewState state = plainState();
    state.quote = {u"Be here"_s, u"Virginia Wilde"_s};
    state.locale = QLocale(u"en_US"_s);
    const QuoteView english(state, shippedFonts());
    state.locale = QLocale(u"tr_TR"_s);
    const QuoteView turkish(state, shippedFonts());
    const QRect author = english.rect(Element::Author).toAlignedRect();
    ASSERT_EQ(turkish.rect(Element::Author).toAlignedRect(), author);
    ASSERT_FALSE(inkWithin(drawn(english, 9), author).isEmpty());
    EXPECT_EQ(drawn(turkish, 9).copy(author), drawn(english, 9).copy(author));
}

TEST(QuoteView, SurvivesAbsurdStates) {
    for (const double sizeScale : {0.0, -4.0, 1e9, 1e-12, std::nan(""), double(INFINITY)}) {
        for (const QSizeF size : {QSizeF(1024, 600), QSizeF(40, 30), QSizeF(1, 1)}) {
            for (const QString& animation : {u"fade"_s, u"handwrite"_s, u"typewriter"_s}) {
                QuoteViewState state = plainState(size);
                state.settings.sizeScale = sizeScale;
                state.settings.textAnimRaw = animation;
                state.sideInset = 320;
                state.quote = {u"Be here"_s, u""_s};
                const QuoteView view(state, shippedFonts());
                EXPECT_FALSE(drawn(view, 3).isNull());
            }
        }
    }
    QuoteViewState state = plainState();
    state.quote = {u""_s, u""_s};
    EXPECT_EQ(QuoteView(state, shippedFonts()).lineCount(), 0);
    EXPECT_FALSE(drawn(QuoteView(state, shippedFonts()), 3).isNull());
}
