// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Tests of a quote view for users who want little motion or much contrast.
#include "screen/quoteview.h"

#include "tests/screen/drawnview.h"

#include <gtest/gtest.h>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;
using Element = QuoteView::Element;

namespace {

QuoteViewState stateWith(TextAnim kind, bool isReduced) {
    QuoteViewState state = plainState();
    state.quote = {threeLines, u"Anonymous"_s};
    state.settings.textAnimRaw = rawValue(kind);
    state.settings.reducedMotion = isReduced;
    return state;
}

constexpr double late = 100; // seconds

} // namespace

class ReducedMotion : public testing::TestWithParam<TextAnim> {};

TEST_P(ReducedMotion, FadesEverythingInWithoutMovement) {
    const QuoteView view(stateWith(GetParam(), true), shippedFonts());
    const QImage rest = drawn(view, late);
    EXPECT_EQ(drawn(view, 0.3), rest);
    EXPECT_EQ(view.nextMotion(0.3), std::nullopt);
    EXPECT_EQ(view.nextMotion(0), 0);
    EXPECT_TRUE(view.changedBetween(0.1, 0.2).contains(view.lineRect(2).toAlignedRect()));
    const QImage before = drawn(view, 0.2);
    EXPECT_NE(before, rest);
    // Nothing is drawn beside its place: letters where there are none at rest would be
    // brighter than the shadows there.
    int astray = 0;
    for (int y = 0; y < rest.height(); ++y) {
        for (int x = 0; x < rest.width(); ++x) {
            astray += qGreen(before.pixel(x, y)) > qGreen(rest.pixel(x, y)) + 2 ? 1 : 0;
        }
    }
    EXPECT_EQ(astray, 0);
}

TEST_P(ReducedMotion, EndsWithTheSamePicture) {
    if (GetParam() == TextAnim::Handwrite) {
        GTEST_SKIP() << "handwritten letters keep the line of the pen, and no pen has moved";
    }
    const QuoteView still(stateWith(GetParam(), true), shippedFonts());
    const QuoteView moving(stateWith(GetParam(), false), shippedFonts());
    EXPECT_EQ(drawn(still, late), drawn(moving, late));
}

TEST_P(ReducedMotion, EndsWhatIsMovingWhenTheWishComes) {
    QuoteView view(stateWith(GetParam(), false), shippedFonts());
    EXPECT_NE(view.nextMotion(0.9), std::nullopt);
    view.update(stateWith(GetParam(), true), 0.9);
    EXPECT_EQ(view.nextMotion(0.9), std::nullopt);
    EXPECT_EQ(view.lineAppearedAt(0), 0);
}

INSTANTIATE_TEST_SUITE_P(AllKinds, ReducedMotion, testing::ValuesIn(allTextAnims),
                         [](const auto& info) { return rawValue(info.param).toStdString(); });

TEST(HighContrast, DrawsHeaderAuthorAndHintInFullInk) {
    QuoteViewState state = stateWith(TextAnim::Fade, false);
    QuoteView view(state, shippedFonts());
    const auto brightest = [&](Element element) {
        const QImage image = drawn(view, late);
        const QRect part = view.rect(element).toAlignedRect().intersected(image.rect());
        int most = 0;
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                most = std::max(most, qAlpha(image.pixel(x, y)));
            }
        }
        return most;
    };
    constexpr int nearlyFull = 225; // of 255: thin strokes fill no pixel
    for (const Element element :
         {Element::Greeting, Element::Today, Element::Author, Element::Hint}) {
        EXPECT_LT(brightest(element), nearlyFull);
    }
    const QRectF place = view.rect(Element::Author);
    state.settings.highContrast = true;
    view.update(state, 5);
    for (const Element element :
         {Element::Greeting, Element::Today, Element::Author, Element::Hint}) {
        EXPECT_GE(brightest(element), nearlyFull);
    }
    EXPECT_EQ(view.rect(Element::Author), place);
}
