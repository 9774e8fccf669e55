// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/shapedtext.h"
#include "textanim/textoutline.h"

#include "tests/fakes/shippedfonts.h"
#include "textanim/handwriting.h"
#include "textanim/textlayout.h"

#include <QPainter>
#include <gtest/gtest.h>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString sentence = u"The office of AVA: “find, affix”"_s;

double leftOf(const OutlinePart& part) {
    return part.ink.outline.boundingRect().left();
}

TEST(ShapedText, EverythingScalesWithTheSize) {
    for (const char* name : {"fraunces", "serif", "sans", "rounded", "mono"}) {
        const ShapedText large(sentence, shippedFace(QString::fromUtf8(name), 88));
        for (const double size : {11.0, 37.4, 44.0, 68.2}) {
            const ShapedText text(sentence, shippedFace(QString::fromUtf8(name), size));
            const double ratio = size / 88;
            EXPECT_NEAR(text.size().width(), large.size().width() * ratio, 1e-6) << name;
            EXPECT_NEAR(text.baseline(), large.baseline() * ratio, 1e-9) << name;
            const auto& parts = text.outline().parts;
            const auto& largeParts = large.outline().parts;
            ASSERT_EQ(parts.size(), largeParts.size());
            for (std::size_t i = 0; i < parts.size(); ++i) {
                EXPECT_NEAR(leftOf(parts[i]), leftOf(largeParts[i]) * ratio, 1e-6);
            }
        }
    }
}

TEST(ShapedText, UsesTheMetricsOfTheFace) {
    const ShapedText text(u"x"_s, shippedFace(u"fraunces"_s, 100));
    EXPECT_NEAR(text.baseline(), 97.8, 1e-6);
    EXPECT_NEAR(text.size().height(), 123.3, 1e-6);
    EXPECT_NEAR(ShapedText(u"0000000000"_s, shippedFace(u"mono"_s, 37.4)).size().width(), 224.4,
                0.05);
}

TEST(ShapedText, KernsAndJoinsLetters) {
    const double apart = ShapedText(u"A"_s, shippedFace(u"serif"_s)).size().width() +
                         ShapedText(u"V"_s, shippedFace(u"serif"_s)).size().width();
    EXPECT_LT(ShapedText(u"AV"_s, shippedFace(u"serif"_s)).size().width(), apart - 0.5);
    const ShapedText joined(u"office"_s, shippedFace(u"serif"_s));
    EXPECT_LT(joined.outline().parts.size(), 6U);
    EXPECT_EQ(joined.outline().characterCount, 6);
}

TEST(ShapedText, TrackingComesAfterEveryCharacter) {
    const double plain = ShapedText(u"ANN"_s, shippedFace(u"mono"_s, 12)).size().width();
    EXPECT_NEAR(ShapedText(u"ANN"_s, shippedFace(u"mono"_s, 12), 3.4).size().width(),
                plain + 3 * 3.4, 0.01);
}

TEST(ShapedText, GreekAndCyrillicComeFromTheShippedSerif) {
    for (const char* text : {"Ελλάς", "Добро"}) {
        const TextLayout layout = layOut(QString::fromUtf8(text), shippedFace(u"fraunces"_s).face,
                                         0, 0, LineBreaks::Kept);
        for (const GlyphCluster& cluster : layout.rows.front().clusters) {
            for (const PlacedGlyph& glyph : cluster.glyphs) {
                EXPECT_EQ(glyph.face.familyName(), u"EB Garamond"_s);
            }
        }
    }
}

TEST(ShapedText, WrapsAtWordsIntoLeadingRows) {
    const ShapedText whole(u"one two three four"_s, shippedFace(u"mono"_s));
    const ShapedText rows(u"one two three four"_s, shippedFace(u"mono"_s), 0,
                          whole.size().width() * 0.6);
    EXPECT_NEAR(rows.size().height(), 2 * whole.size().height(), 1e-6);
    EXPECT_LE(rows.size().width(), whole.size().width() * 0.6);
    EXPECT_NEAR(rows.baseline(), whole.baseline(), 1e-9);
    const ShapedText fits(u"one two three four"_s, shippedFace(u"mono"_s), 0,
                          whole.size().width() + 1);
    EXPECT_EQ(fits.size().height(), whole.size().height());
}

TEST(ShapedText, AWordThatIsTooWideIsScaledDown) {
    const ShapedText text(u"a Donaudampfschifffahrtsgesellschaft"_s, shippedFace(u"serif"_s), 0,
                          300);
    EXPECT_NEAR(text.size().width(), 300, 1e-6);
    EXPECT_LE(text.outline().ink.right(), 302);
    EXPECT_LT(text.size().height(),
              2 * ShapedText(u"a"_s, shippedFace(u"serif"_s)).size().height());
}

TEST(ShapedText, RightToLeftRowsEndAtTheRight) {
    const ShapedText text(u"שלום עולם טוב מאוד"_s, shippedFace(u"sans"_s), 0, 250);
    EXPECT_GT(text.size().height(),
              ShapedText(u"x"_s, shippedFace(u"sans"_s)).size().height() * 1.5);
    const auto& parts = text.outline().parts;
    EXPECT_GT(leftOf(parts[0]), leftOf(parts[1]));
    EXPECT_GT(leftOf(parts.front()), leftOf(parts.back()));
}

TEST(ShapedText, EmptyAndBlankTextsDrawNothing) {
    const ShapedText nothing(QString(), shippedFace(u"fraunces"_s));
    EXPECT_EQ(nothing.size().width(), 0);
    EXPECT_GT(nothing.size().height(), 40);
    const ShapedText spaces(u"   "_s, shippedFace(u"fraunces"_s));
    EXPECT_GT(spaces.size().width(), 20);
    EXPECT_TRUE(spaces.outline().ink.isEmpty());
    EXPECT_EQ(ShapedText().size(), QSizeF(0, 0));
    EXPECT_EQ(ShapedText(u"x"_s, shippedFace(u"serif"_s, 0)).size(), QSizeF(0, 0));
}

TEST(ShapedText, EmojiKeepTheirPictures) {
    const ShapedText text(u"a 🇩🇪 b"_s, shippedFace(u"fraunces"_s));
    if (!text.outline().hasPictures) {
        GTEST_SKIP() << "no face with colour glyphs is installed";
    }
    EXPECT_LT(text.size().height(), 100);
    QImage picture(300, 80, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    text.paint(painter, {}, Qt::black);
    painter.end();
    bool red = false;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            red = red || (pixel.red() > 150 && pixel.green() < 60);
        }
    }
    EXPECT_TRUE(red);
}

TEST(ShapedText, LineBreaksStartNewRows) {
    const double row = ShapedText(u"a"_s, shippedFace(u"serif"_s)).size().height();
    EXPECT_NEAR(ShapedText(u"a\nb"_s, shippedFace(u"serif"_s)).size().height(), 2 * row, 1e-6);
    EXPECT_NEAR(ShapedText(u"a\r\nb"_s, shippedFace(u"serif"_s)).size().height(), 2 * row, 1e-6);
    EXPECT_EQ(handwrittenLine(u"a\nb"_s, shippedFace(u"serif"_s)).text.parts.size(), 3U);
}

TEST(GlyphPath, SizeIsInWholePoints) {
    const GlyphPath line = glyphPath(u"Hxg"_s, shippedFace(u"fraunces"_s, 44));
    const ShapedText text(u"Hxg"_s, shippedFace(u"fraunces"_s, 44));
    EXPECT_EQ(line.size.width(), std::ceil(text.size().width()));
    EXPECT_EQ(line.size.height(), std::ceil(44 * 1.233));
    EXPECT_EQ(line.path.fillRule(), Qt::WindingFill);
}

TEST(GlyphPath, TheBaselineLiesAtTheDepthOfTheRequestedFont) {
    const double depth = 44 * (1.233 - 0.978);
    EXPECT_NEAR(glyphPath(u"HH"_s, shippedFace(u"fraunces"_s)).path.boundingRect().top(), depth,
                0.05);
    // A letter of a fallback face is on the same baseline.
    EXPECT_NEAR(glyphPath(u"Н"_s, shippedFace(u"fraunces"_s)).path.boundingRect().top(), depth,
                0.3);
    const QRectF descending = glyphPath(u"p"_s, shippedFace(u"fraunces"_s)).path.boundingRect();
    EXPECT_GT(descending.top(), -1);
    EXPECT_LT(descending.top(), depth - 5);
}

TEST(GlyphPath, EmptyAndBlankLines) {
    EXPECT_TRUE(glyphPath(u""_s, shippedFace(u"serif"_s)).path.isEmpty());
    EXPECT_EQ(glyphPath(u""_s, shippedFace(u"serif"_s)).size.width(), 0);
    EXPECT_TRUE(glyphPath(u"  "_s, shippedFace(u"serif"_s)).path.isEmpty());
    EXPECT_GT(glyphPath(u"  "_s, shippedFace(u"serif"_s)).size.width(), 10);
}

TEST(GlyphPath, ALineWiderThanTheColumnIsBrokenIntoRows) {
    const QSizeF whole = handwrittenLineSize(sentence, shippedFace(u"mono"_s));
    const QSizeF rows = handwrittenLineSize(sentence, shippedFace(u"mono"_s), 400.5);
    EXPECT_LE(rows.width(), 400.5);
    EXPECT_NEAR(rows.height(), 3 * whole.height(), 3);
    EXPECT_EQ(handwrittenLineSize(sentence, shippedFace(u"mono"_s), whole.width()), whole);
}

TEST(PenWidth, HasALowerLimit) {
    EXPECT_DOUBLE_EQ(penWidth(30), 0.7);
    EXPECT_DOUBLE_EQ(penWidth(60), 1.08);
    EXPECT_DOUBLE_EQ(penWidth(44), 0.792);
}

} // namespace
