// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/backdrop.h"
#include "screen/quoteview.h"
#include "tests/screen/goldenpictures.h"
#include "tests/screen/sceneforscreens.h"

#include <QPainter>
#include <gtest/gtest.h>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int atRest = 20; // seconds

QuoteViewState quotedState(QSizeF size, int palette) {
    QuoteViewState state = plainState(size);
    state.palette = Palette::all()[static_cast<size_t>(palette)];
    state.settings.screenAnimRaw = u"still"_s;
    state.quote = {u"The mind is not a vessel to be filled, but a fire to be kindled."_s,
                   u"Plutarch"_s};
    return state;
}

QImage frameOf(const QuoteViewState& state, double seconds = atRest) {
    BackdropPainter painter;
    // The grain has its own tests and would only make the files large.
    BackdropState backdrop = backdropFor(state.settings, state.palette, false);
    backdrop.grainOn = false;
    return renderFrame(painter, backdrop, QuoteView(state, shippedFonts()), seconds, 0);
}

void expectGolden(const QString& name, const QuoteViewState& state, int factor,
                  double seconds = atRest) {
    morrowleaf::expectGolden(name, forRecord(frameOf(state, seconds), factor));
}

class PictureComparison : public ::testing::Test {
protected:
    // The palette, size and ratio of one picture on record.
    static QuoteViewState recorded() { return quotedState({1024, 600}, 0); }

    static PictureDifference difference(const QImage& frame, int factor = 2) {
        return comparePictures(forRecord(frameOf(recorded()), factor), forRecord(frame, factor));
    }

    // The recorded frame with a part of it moved down.
    static QImage moved(const QRectF& part, double points) {
        QImage frame = frameOf(recorded());
        const QRect rect = part.toAlignedRect().adjusted(-4, 0, 4, 0);
        const QImage copy = frame.copy(rect);
        QPainter painter(&frame);
        painter.drawImage(rect.topLeft() + QPointF(0, points), copy);
        return frame;
    }
};

} // namespace

TEST(Golden, Palettes) {
    for (int palette = 0; palette < 9; ++palette) {
        const QString name = Palette::all()[static_cast<size_t>(palette)].name.toLower();
        expectGolden(u"palette-"_s + name + u".png"_s, quotedState({1024, 600}, palette), 2);
    }
}

TEST(Golden, SizesAndPixelRatios) {
    for (const QSize size : {QSize(1024, 600), QSize(1512, 982), QSize(2560, 1440)}) {
        for (const int ratio : {1, 2}) {
            QuoteViewState state = quotedState(size, 4);
            state.devicePixelRatio = ratio;
            expectGolden(u"size-%1x%2@%3.png"_s.arg(size.width()).arg(size.height()).arg(ratio),
                         state, 2 * ratio);
        }
    }
}

TEST(Golden, EditingHandwritingEntranceAndALongQuotation) {
    QuoteViewState editing = quotedState({1440, 900}, 2);
    editing.sideInset = 320;
    editing.settings.fontName = u"mono"_s;
    expectGolden(u"editing-mono.png"_s, editing, 2);

    QuoteViewState written = quotedState({1024, 600}, 7);
    written.settings.textAnimRaw = u"handwrite"_s;
    expectGolden(u"handwriting.png"_s, written, 2, 1.7);

    QuoteViewState entering = quotedState({1024, 600}, 3);
    entering.settings.fontName = u"serif"_s;
    expectGolden(u"entering.png"_s, entering, 2, 1.05);

    QuoteViewState longer = quotedState({1512, 982}, 8);
    longer.settings.fontName = u"rounded"_s;
    longer.quote.text = u"All that is gold does not glitter, and the road goes on. "_s.repeated(14);
    expectGolden(u"long.png"_s, longer, 2);
}

TEST_F(PictureComparison, TheSamePictureIsAccepted) {
    const PictureDifference same = difference(frameOf(recorded()));
    EXPECT_EQ(same.worstBlock, 0);
    EXPECT_EQ(same.strayPixels, 0);
}

// Another rasteriser may draw the same outlines a fraction of a pixel away.
TEST_F(PictureComparison, AnotherRasteriserIsAccepted) {
    const QImage frame = frameOf(recorded());
    QImage softened(frame.size(), frame.format());
    softened.fill(Qt::black);
    QPainter painter(&softened);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QPointF(0, 0), frame);
    painter.setOpacity(0.12);
    painter.drawImage(QPointF(1, 0), frame);
    painter.end();
    const PictureDifference found = difference(softened);
    EXPECT_TRUE(found.acceptable()) << found.worstBlock << ' ' << found.strayPixels;
}

TEST_F(PictureComparison, AMovedLineIsRejected) {
    const QuoteView view(recorded(), shippedFonts());
    for (qsizetype line = 0; line < view.lineCount(); ++line) {
        EXPECT_FALSE(difference(moved(view.lineRect(line), 3)).acceptable()) << line;
    }
}

TEST_F(PictureComparison, AnotherInkIsRejected) {
    QuoteViewState state = recorded();
    state.palette.ink = Palette::hex(0xFFEEDD);
    EXPECT_FALSE(difference(frameOf(state)).acceptable());
}

TEST_F(PictureComparison, AnotherGroundIsRejected) {
    QuoteViewState state = recorded();
    state.palette.colors[4] = Palette::hex(0x4B3E8C);
    EXPECT_FALSE(difference(frameOf(state)).acceptable());
}

TEST_F(PictureComparison, AMissingElementIsRejected) {
    const QuoteView view(recorded(), shippedFonts());
    QuoteViewState anonymous = recorded();
    anonymous.quote.author.clear();
    EXPECT_FALSE(difference(frameOf(anonymous)).acceptable());

    QuoteViewState without = recorded();
    without.quote = {};
    using Element = QuoteView::Element;
    for (const Element element : {Element::Greeting, Element::Today, Element::Mark, Element::Rule,
                                  Element::Author, Element::Hint}) {
        QuoteViewState bare = recorded();
        bare.palette.ink = Qt::transparent;
        const QImage ground = frameOf(bare);
        QImage frame = frameOf(recorded());
        const QRect rect = view.rect(element).toAlignedRect().adjusted(-2, -2, 2, 2);
        QPainter painter(&frame);
        painter.drawImage(rect, ground, rect);
        painter.end();
        EXPECT_FALSE(difference(frame).acceptable()) << static_cast<int>(element);
    }
}
