// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// How the characters of a text are set: tracking, emoji, control characters, ligatures.
#include "textanim/characters.h"

#include "base/graphemes.h"
#include "tests/textanim/paintedline.h"
#include "textanim/begunglyphs.h"
#include "textanim/shapedtext.h"
#include "textanim/textlayout.h"
#include "textanim/textoutline.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

double widthOf(const QString& text, double tracking) {
    return ShapedText(text, shippedFace(u"mono"_s), tracking).size().width();
}

TEST(Tracking, TearsNoJoinedScriptApart) {
    for (const QString& word :
         {u"\u0633\u0644\u0627\u0645"_s, u"\u0928\u092E\u0938\u094D\u0924\u0947"_s,
          u"\u0995\u09B2\u09AE"_s, u"\u07D2\u07DE\u07CF"_s, u"\u0633\u0640\u0644\u0627\u0645"_s}) {
        EXPECT_EQ(widthOf(word, 9), widthOf(word, 0)) << word.toStdString();
        EXPECT_EQ(ShapedText(word, shippedFace(u"mono"_s), 9).lastTracking(), 0);
        // Three letters, a space and no more.
        EXPECT_NEAR(widthOf(u"ABC "_s + word, 9), widthOf(u"ABC "_s + word, 0) + 4 * 9, 0.05);
        EXPECT_EQ(widthOf(word + u' ' + word, 9), widthOf(word + u' ' + word, 0));
    }
    EXPECT_NEAR(ShapedText(u"ABC"_s, shippedFace(u"mono"_s), 9).lastTracking(), 9, 1e-9);
}

std::set<QString> facesOf(const QString& text, const QString& name) {
    std::set<QString> faces;
    const TextLayout layout = layOut(text, shippedFace(name).face, 0, 0, LineBreaks::Kept);
    for (const GlyphCluster& cluster : layout.rows.front().clusters) {
        for (const PlacedGlyph& glyph : cluster.glyphs) {
            faces.insert(glyph.face.familyName());
        }
    }
    return faces;
}

// A joiner may come from another face, which makes the row no higher.
TEST(Joiners, ChangeNothingButLigatures) {
    for (const QString& name : {u"fraunces"_s, u"serif"_s, u"sans"_s, u"rounded"_s, u"mono"_s}) {
        const double height = ShapedText(u"fi"_s, shippedFace(name)).size().height();
        for (const QString& text : {u"f\u200Ci"_s, u"f\u200Di"_s}) {
            EXPECT_EQ(ShapedText(text, shippedFace(name)).size().height(), height)
                << name.toStdString();
            const MeasuredTexts measured = measureTexts({text}, shippedFace(name).face);
            EXPECT_NEAR(measured.rowHeight * 44 / shapingSize, height, 1e-9);
        }
    }
}

TEST(Emoji, ComeFromOneColouredFace) {
    const QString known = u"\U0001F469\u200D\U0001F467"_s; // a joined one
    if (!ShapedText(known, shippedFace(u"sans"_s)).outline().hasPictures) {
        GTEST_SKIP() << "no face with colour glyphs is installed";
    }
    const std::set<QString> colour = facesOf(known, u"sans"_s);
    ASSERT_EQ(colour.size(), 1U);
    for (const QString& name : {u"fraunces"_s, u"serif"_s, u"sans"_s, u"rounded"_s, u"mono"_s}) {
        for (const QString& emoji :
             {u"\U0001F600"_s, u"\u2764\uFE0F"_s, u"1\uFE0F\u20E3"_s, u"\U0001F44D\U0001F3FD"_s,
              u"\U0001F3F3\uFE0F\u200D\U0001F308"_s, u"\u263A\uFE0F"_s, u"\u270C\U0001F3FD"_s,
              u"\u2764\u200D\U0001F525"_s, u"\U0001F575\u200D\u2642"_s}) {
            EXPECT_EQ(facesOf(emoji, name), colour) << emoji.toStdString();
            EXPECT_EQ(
                ShapedText(emoji, shippedFace(name)).outline().parts.front().ink.pictures.size(),
                1U)
                << emoji.toStdString();
        }
        EXPECT_NE(facesOf(u"\u2764"_s, name), colour);
        EXPECT_NE(facesOf(u"1"_s, name), colour);
    }
}

TEST(Emoji, StandBesideEachOther) {
    for (const QString& name : {u"fraunces"_s, u"serif"_s, u"sans"_s, u"rounded"_s, u"mono"_s}) {
        const ShapedText text(u"\U0001F600\U0001F600"_s, shippedFace(name));
        const auto& parts = text.outline().parts;
        if (!text.outline().hasPictures) {
            GTEST_SKIP() << "no face with colour glyphs is installed";
        }
        ASSERT_EQ(parts.size(), 2U);
        const QRectF first = parts[0].ink.pictures.at(0).place;
        const QRectF second = parts[1].ink.pictures.at(0).place;
        EXPECT_GE(second.left(), first.left() + 0.9 * first.width()) << name.toStdString();
        EXPECT_LE(second.left(), first.left() + 1.5 * first.width()) << name.toStdString();
    }
}

TEST(ControlCharacters, AreCountedAndNotDrawn) {
    for (const QString& name : {u"fraunces"_s, u"serif"_s, u"sans"_s, u"rounded"_s, u"mono"_s}) {
        const ShapedText clean(u"light"_s, shippedFace(name));
        for (const char16_t control : {u'\1', u'\a', u'\x1B', u'\x7F', u'\x80', u'\x9F'}) {
            const ShapedText text(u"li"_s + QChar(control) + u"ght"_s + QChar(control),
                                  shippedFace(name));
            EXPECT_EQ(text.size(), clean.size()) << name.toStdString() << ' ' << int(control);
            EXPECT_EQ(text.outline().ink, clean.outline().ink) << name.toStdString();
            EXPECT_EQ(text.outline().characterCount, 7);
        }
        EXPECT_EQ(ShapedText(QString(QChar(1)), shippedFace(name)).size().width(), 0);
    }
}

TEST(ControlCharacters, BreakLinesWhereTheyMeanThat) {
    const double row = ShapedText(u"a"_s, shippedFace(u"serif"_s)).size().height();
    for (const char16_t control : {u'\v', u'\f', char16_t{0x85}}) {
        const QString text = u"a"_s + QChar(control) + u'b';
        EXPECT_NEAR(ShapedText(text, shippedFace(u"serif"_s)).size().height(), 2 * row, 1e-6);
    }
}

RevealLine typed(const QString& text, const QString& name) {
    RevealLine::Parts bare = parts(TextAnim::Typewriter, text, name);
    bare.shadow.opacity = 0;
    return RevealLine(bare);
}

QRectF inkAfter(const QString& text, const QString& name, int characters) {
    const RevealLine line = typed(text, name);
    return inkOf(painted(line, line.delay() + (characters + 0.5) / 26, 2));
}

// The letters of a ligature that is half typed stand there by themselves.
TEST(BegunLigature, IsTheLettersThatAreTyped) {
    const QString nonJoiner(QChar(0x200C));
    for (const auto& [word, begun] :
         {std::pair(u"fi"_s, u"f"_s), std::pair(u"Tafl"_s, u"Taf"_s), std::pair(u"ffi"_s, u"f"_s),
          std::pair(u"ffi"_s, u"f"_s + nonJoiner + u'f'), std::pair(u"off"_s, u"of"_s)}) {
        const auto characters = static_cast<int>(characterCount(begun));
        const QRectF shown = inkAfter(word, u"serif"_s, characters);
        const QRectF alone = inkAfter(begun, u"serif"_s, characters);
        EXPECT_NEAR(shown.left(), alone.left(), 0.6) << begun.toStdString();
        EXPECT_NEAR(shown.right(), alone.right(), 0.6) << begun.toStdString();
        EXPECT_NEAR(shown.top(), alone.top(), 0.6) << begun.toStdString();
    }
}

TEST(BegunLigature, IsTheLetterAloneInArabic) {
    // A lam alone is taller and narrower than a half of its ligature with alef.
    const QString lamAlef = u"\u0644\u0627"_s;
    EXPECT_NEAR(inkAfter(lamAlef, u"sans"_s, 1).height(),
                inkAfter(lamAlef.left(1), u"sans"_s, 1).height(), 0.6);
    EXPECT_NEAR(inkAfter(lamAlef, u"sans"_s, 1).width(),
                inkAfter(lamAlef.left(1), u"sans"_s, 1).width(), 0.6);
}

// A joiner would load another face, since most faces have none.
TEST(BegunLigature, NeedsNoOtherFace) {
    for (const QString& name : {u"fraunces"_s, u"serif"_s, u"sans"_s}) {
        const QFont font = shippedFace(name).face;
        TextLayout layout = layOut(u"office"_s, font, 0, 0, LineBreaks::Kept);
        addBegunGlyphs(layout.rows.front(), u"office"_s, 0, font);
        for (const GlyphCluster& cluster : layout.rows.front().clusters) {
            for (const auto& glyphs : cluster.begun) {
                for (const PlacedGlyph& glyph : glyphs) {
                    EXPECT_EQ(glyph.face, cluster.glyphs.front().face) << name.toStdString();
                }
            }
        }
    }
}

} // namespace
