// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/quoteview.h"

#include "tests/screen/drawnview.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;
using Element = QuoteView::Element;

TEST(QuoteView, PlacesItsElementsAtTheSpecifiedDistances) {
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
    EXPECT_EQ(view.quoteSize(), 44);
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

TEST(QuoteView, EachElementEntersAtItsTime) {
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

TEST(QuoteView, ReportsEveryPixelThatChanges) {
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

TEST(QuoteView, DrawsAPartAsInTheWholePicture) {
    QuoteViewState state = plainState({1024, 600});
    state.quote = {threeLines, u"Anonymous"_s};
    const QuoteView view(state, shippedFonts());
    const QImage whole = drawn(view, 0.95);
    const QRegion parts = QRegion(300, 200, 211, 97) + QRegion(350, 280, 300, 60);
    QImage image(whole.size(), whole.format());
    image.fill(Qt::transparent);
    QPainter painter(&image);
    view.paint(painter, 0.95, parts);
    for (const QRect& part : parts) {
        EXPECT_EQ(image.copy(part), whole.copy(part));
    }
    painter.setClipRegion(parts);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.fillRect(image.rect(), Qt::black);
    painter.end();
    QImage blank(whole.size(), whole.format());
    blank.fill(Qt::transparent);
    EXPECT_EQ(image, blank); // nothing was drawn beyond
}

TEST(QuoteView, ScalesDownALongQuotationAsAWhole) {
    QuoteViewState state = plainState();
    state.quote = {u"A sentence that goes on and on. "_s.repeated(30), u"Anonymous"_s};
    const QuoteView view(state, shippedFonts());
    EXPECT_LT(view.quoteSize(), 44);
    EXPECT_GT(view.quoteSize(), 12);
    EXPECT_GE(view.rect(Element::Mark).top(), view.rect(Element::Greeting).bottom());
    EXPECT_LE(view.rect(Element::Author).bottom(), view.rect(Element::Hint).top());
    const int target = wrapTarget(1512, 0, view.quoteSize() / 44);
    EXPECT_GE(view.lineCount(), 960 / (target + 3));
    EXPECT_FALSE(inkWithin(drawn(view, 20), view.rect(Element::Author).toAlignedRect()).isEmpty());
}

TEST(QuoteView, FadesOutWhatDoesNotFitAtTwelvePoints) {
    QuoteViewState state = plainState();
    state.quote = {u"Thousands of characters may arrive here. "_s.repeated(200), u"Anonymous"_s};
    const QuoteView view(state, shippedFonts());
    EXPECT_EQ(view.quoteSize(), 12);
    const QImage image = drawn(view, 100);
    const int hintTop = static_cast<int>(view.rect(Element::Hint).top());
    EXPECT_TRUE(inkWithin(image, QRect(0, hintTop - 8, 1512, 7), 2).isEmpty());
    EXPECT_FALSE(inkWithin(image, QRect(0, hintTop - 120, 1512, 30)).isEmpty());
    EXPECT_FALSE(inkWithin(image, view.rect(Element::Hint).toAlignedRect()).isEmpty());
}

TEST(QuoteView, WrapsALineThatIsWiderThanTheColumn) {
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

TEST(QuoteView, AlignsRightToLeftTextAtTheRight) {
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

TEST(QuoteView, AlignsTheRuleWithWholePixels) {
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

TEST(QuoteView, UppercasesTheAuthorIndependentlyOfTheLocale) {
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

TEST(QuoteView, SurvivesExtremeStates) {
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
