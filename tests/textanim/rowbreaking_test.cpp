// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/rowbreaking.h"

#include "tests/fakes/glyphs.h"
#include "tests/fakes/shippedfonts.h"
#include "textanim/handwriting.h"
#include "textanim/pentrace.h"
#include "textanim/revealline.h"
#include "textanim/shapedtext.h"
#include "textanim/textlayout.h"
#include "textanim/textoutline.h"

#include <QImage>
#include <QPainter>
#include <QSet>
#include <gtest/gtest.h>

#include <algorithm>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString chinese = u"学而时习之不亦说乎有朋自远方来不亦乐乎人不知而不愠不亦君子乎"_s;
const QString thai = u"ความพยายามอยู่ที่ไหนความสำเร็จอยู่ที่นั่นและวันใหม่เริ่มต้นเสมอ"_s;
const QString longWord = u"Wort-fuer-Wort-und-Satz-fuer-Satz-waechst-ein-Buch-in-der-Stille"_s;

std::vector<RowPiece> equalPieces(std::size_t count) {
    return std::vector<RowPiece>(count, RowPiece{1, 1});
}

// The number of characters in each row, top to bottom.
std::vector<qsizetype> rowLengths(const TextOutline& text) {
    std::vector<qsizetype> lengths;
    double right = 0;
    for (const OutlinePart& part : text.parts) {
        const double end = part.ink.outline.boundingRect().right();
        const bool isRow = lengths.empty() || end < right - 20;
        if (isRow) {
            lengths.push_back(0);
        }
        lengths.back() += part.characterCount;
        right = end;
    }
    return lengths;
}

// The highest alpha in each of `rows` strips of equal height.
std::vector<int> darkestPixels(const RevealLine& line, double seconds, int rows) {
    constexpr int scale = 2;
    const QSizeF size = scale * line.size();
    QImage picture(size.toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    line.paint(painter, {0, 0}, seconds);
    std::vector<int> darkest(static_cast<std::size_t>(rows), 0);
    for (int y = 0; y < picture.height(); ++y) {
        int& most = darkest[static_cast<std::size_t>(y * rows / picture.height())];
        for (int x = 0; x < picture.width(); ++x) {
            most = std::max(most, qAlpha(picture.pixel(x, y)));
        }
    }
    return darkest;
}

// Where the pen is after a share of its way, in points from the top.
double penHeight(const HandwrittenLine& line, double share) {
    const PenTrace trace = penTrace(wholePath(line.text), 10);
    const auto at = std::ranges::find_if(trace.stretches, [&](const PenStretch& stretch) {
        return stretch.begin + stretch.length >= share * trace.length;
    });
    return at->points.boundingRect().center().y();
}

TEST(RowLayout, OfAMeasuredTextIsTheSame) {
    const TextFont font = shippedFace(u"fraunces"_s);
    for (const QString& text :
         {QString(100, u'\u6C34'), u"\u6C34\u706B\U0001F600\u6728"_s.repeated(30),
          u"super\u00ADcali\u00ADfragi\u00ADlistic-expi\u2014ali\ndocious"_s.repeated(3)}) {
        for (const double width : {3000.0, 8000.0, 100'000.0}) {
            RowLayout unmeasured(text, font.face, 0, width, LineBreaks::Kept);
            RowLayout measured(text, font.face, 0, width, LineBreaks::Kept,
                               measureTexts({text}, font.face).pieces.front());
            ASSERT_EQ(measured.rows().rows.size(), unmeasured.rows().rows.size()) << width;
            for (std::size_t i = 0; i < unmeasured.rows().rows.size(); ++i) {
                const TextRow one = unmeasured.row(i, 1);
                const TextRow other = measured.row(i, 1);
                EXPECT_NEAR(one.width, other.width, 0.1) << width << ' ' << i;
                EXPECT_EQ(one.ascent, other.ascent) << width << ' ' << i;
                EXPECT_EQ(one.descent, other.descent) << width << ' ' << i;
                EXPECT_EQ(one.clusters.size(), other.clusters.size());
            }
        }
    }
}

// The letters of one word in a column of a few points.
TEST(RowLayout, HasBoxesForLettersThatCannotBeToldApart) {
    const TextFont font = shippedFace(u"fraunces"_s);
    for (const QString& text : {QString(2000, u'w'), QString(2000, u'\u0644')}) {
        const RowLayout layout(text, font.face, 0, 9000, LineBreaks::Kept);
        ASSERT_EQ(layout.rows().rows.size(), 1U);
        const TextRow large = layout.row(0, 2.5 / shapingSize);
        ASSERT_EQ(large.clusters.size(), 2000U);
        EXPECT_FALSE(large.clusters.front().glyphs.empty());
        const TextRow small = layout.row(0, 1.5 / shapingSize);
        ASSERT_EQ(small.clusters.size(), 2000U);
        for (std::size_t i = 0; i < 2000; ++i) {
            const GlyphCluster& box = small.clusters[i];
            EXPECT_TRUE(box.glyphs.empty());
            EXPECT_EQ(box.firstCharacter, static_cast<qsizetype>(i));
            const double drawn = large.clusters[i].glyphs.front().position.x();
            EXPECT_NEAR(box.box.left(), drawn, 0.01 * large.width);
        }
    }
}

} // namespace

TEST(BreakRows, KeepsOneRowThatFits) {
    EXPECT_EQ(breakRows(equalPieces(5), 5), std::vector<std::size_t>{5});
    EXPECT_EQ(rowCount(equalPieces(5), 5), 1U);
    EXPECT_TRUE(breakRows({}, 5).empty());
    EXPECT_EQ(rowCount({}, 5), 0U);
}

TEST(BreakRows, MakesRowsOfNearlyEqualLength) {
    for (std::size_t count = 6; count < 90; ++count) {
        for (std::size_t width = 5; width < 30; ++width) {
            const auto ends = breakRows(equalPieces(count), static_cast<double>(width));
            EXPECT_EQ(ends.size(), (count + width - 1) / width);
            EXPECT_EQ(ends.back(), count);
            std::size_t shortest = count;
            std::size_t longest = 0;
            for (std::size_t i = 0; i < ends.size(); ++i) {
                const std::size_t length = ends[i] - (i == 0 ? 0 : ends[i - 1]);
                shortest = std::min(shortest, length);
                longest = std::max(longest, length);
            }
            EXPECT_LE(longest, width);
            EXPECT_LE(longest - shortest, 1U) << count << " in rows of " << width;
        }
    }
}

TEST(BreakRows, TakesNoMoreRowsThanNeeded) {
    // Equal halves would be 7 and 7, which the wide pieces do not allow.
    const std::vector<RowPiece> pieces{{4, 4}, {4, 4}, {3, 3}, {3, 3}};
    EXPECT_EQ(breakRows(pieces, 8), (std::vector<std::size_t>{2, 4}));
    EXPECT_EQ(rowCount(pieces, 8), 2U);
}

TEST(BreakRows, LetsWhiteSpaceHangOver) {
    const std::vector<RowPiece> pieces{{4, 5}, {4, 5}, {4, 5}};
    EXPECT_EQ(rowCount(pieces, 9), 2U);
    EXPECT_EQ(breakRows(pieces, 14), std::vector<std::size_t>{3});
}

TEST(BreakRows, KeepsTheBreaksOfTheText) {
    const std::vector<RowPiece> pieces{{1, 1, true}, {1, 1}, {1, 1}, {1, 1}, {1, 1, true}, {0, 0}};
    EXPECT_EQ(breakRows(pieces, 3), (std::vector<std::size_t>{1, 3, 5, 6}));
    EXPECT_EQ(rowCount(pieces, 3), 4U);
}

TEST(BreakRows, GivesAWidePieceARowOfItsOwn) {
    const std::vector<RowPiece> pieces{{1, 1}, {9, 9}, {1, 1}};
    EXPECT_EQ(breakRows(pieces, 3), (std::vector<std::size_t>{1, 2, 3}));
}

TEST(Rows, AreTestedWithFacesThatHaveTheScripts) {
    for (const QString& name : {u"fraunces"_s, u"serif"_s}) {
        EXPECT_TRUE(hasGlyphs(chinese, shippedFace(name))) << name.toStdString();
        EXPECT_TRUE(hasGlyphs(thai, shippedFace(name))) << name.toStdString();
    }
    EXPECT_FALSE(hasGlyphs(QString(QChar(0xFDD0)), shippedFace(u"serif"_s)));
}

TEST(Rows, NeverEndInASingleCharacter) {
    const TextFont font = shippedFace(u"fraunces"_s);
    const double column = 10.5 * ShapedText(u"学"_s, font).size().width();
    QSet<std::size_t> counts;
    for (qsizetype length = 8; length <= chinese.size(); ++length) {
        const QString text = chinese.left(length);
        const auto lengths = rowLengths(ShapedText(text, font, 0, column).outline());
        counts.insert(lengths.size());
        const auto [shortest, longest] = std::ranges::minmax(lengths);
        EXPECT_LE(longest - shortest, 1) << length;
        EXPECT_LE(longest, 10) << length;
    }
    EXPECT_EQ(counts, (QSet<std::size_t>{1, 2, 3}));
}

TEST(Rows, AreTheSameInHandwritingAsInType) {
    const TextFont font = shippedFace(u"fraunces"_s);
    for (const QString& text : {chinese, thai, longWord, chinese.left(5), u"a\nb"_s,
                                u"un\u00ADbe\u00ADliev\u00ADable "_s.repeated(3)}) {
        const TextOutline type = ShapedText(text, font, 0, 400).outline();
        const HandwrittenLine written = handwrittenLine(text, font, 400);
        EXPECT_EQ(rowLengths(written.text), rowLengths(type)) << text.toStdString();
        EXPECT_NEAR(written.text.size.height(), type.size.height(), 1) << text.toStdString();
        EXPECT_EQ(written.penWidth, penWidth(font.size));
        // The letters have the same size in both.
        EXPECT_NEAR(written.text.parts.front().ink.outline.boundingRect().height(),
                    type.parts.front().ink.outline.boundingRect().height(), 1e-6);
    }
}

TEST(Rows, OfHandwritingAreWrittenOneAfterAnother) {
    const TextFont font = shippedFace(u"fraunces"_s);
    const RevealLine line({longWord, 0, TextAnim::Handwrite, font, font, Qt::white, {}, 400});
    const HandwrittenLine written = handwrittenLine(longWord, font, 400);
    const auto rows = static_cast<int>(rowLengths(written.text).size());
    ASSERT_GT(rows, 2);
    QSet<int> penRows;
    for (const double share : {0.3, 0.6, 0.9}) {
        double seconds = 0;
        while (penProgress(seconds).traced < share) {
            seconds += 0.001;
        }
        const auto darkest = darkestPixels(line, line.delay() + seconds, rows);
        const int penRow =
            static_cast<int>(penHeight(written, share) / line.size().height() * rows);
        penRows.insert(penRow);
        for (int row = 0; row < penRow; ++row) {
            EXPECT_GT(darkest[static_cast<std::size_t>(row)], 200) << share << ' ' << row;
        }
        // At the end of the tracing all letters slowly fill with ink.
        const double ink = 255 * penProgress(seconds).ink;
        for (int row = penRow + 1; row < rows; ++row) {
            EXPECT_LE(darkest[static_cast<std::size_t>(row)], ink + 1) << share << ' ' << row;
        }
    }
    EXPECT_EQ(penRows.size(), 3);
}

TEST(Rows, LeaveNoRoomForSoftHyphensWithinThem) {
    for (const QString& name : {u"fraunces"_s, u"serif"_s, u"sans"_s, u"rounded"_s, u"mono"_s}) {
        for (const double column : {0.0, 1000.0}) {
            const TextOutline plain =
                ShapedText(u"unbelievable"_s, shippedFace(name), 0, column).outline();
            const TextOutline outline =
                ShapedText(u"un\u00ADbe\u00ADlievable"_s, shippedFace(name), 0, column).outline();
            EXPECT_NEAR(outline.ink.right(), plain.ink.right(), 1) << name.toStdString();
            EXPECT_NEAR(outline.size.width(), plain.size.width(), 1) << name.toStdString();
        }
    }
}

TEST(Rows, EndWithAHyphenWhereASoftOneBreaksThem) {
    const TextFont font = shippedFace(u"serif"_s);
    const double unit = 44.0 / shapingSize;
    const QString text = u"un\u00ADbe\u00ADliev\u00ADable"_s;
    const double whole = unbrokenWidth(text, font.face);
    EXPECT_NEAR(whole, unbrokenWidth(u"unbelievable"_s, font.face), 1);
    const TextLayout layout = layOut(text, font.face, 0, 0.7 * whole, LineBreaks::Kept);
    ASSERT_EQ(layout.rows.size(), 2U);
    EXPECT_NEAR(layout.rows[0].width, unbrokenWidth(u"unbe-"_s, font.face), 1);
    EXPECT_NEAR(layout.rows[1].width, unbrokenWidth(u"lievable"_s, font.face), 1);
    EXPECT_EQ(layout.characterCount, 15);
    // The hyphen is typed, the soft ones within the rows are not seen.
    const TextOutline outline = ShapedText(text, font, 0, 0.7 * whole * unit).outline();
    qsizetype characters = 0;
    int visible = 0;
    for (const OutlinePart& part : outline.parts) {
        characters += part.characterCount;
        visible += part.ink.outline.isEmpty() ? 0 : 1;
    }
    EXPECT_EQ(characters, 13);
    EXPECT_EQ(visible, 13);
}

TEST(MeasuredTexts, TellTheRowsOfALayout) {
    const TextFont font = shippedFace(u"serif"_s);
    const QStringList texts{chinese,
                            u""_s,
                            thai,
                            longWord,
                            u"two words"_s,
                            u"a"_s,
                            u"a\nlong b"_s,
                            u"end\n"_s,
                            u"\u200F\n\n"_s,
                            u"co\u00ADi\u00ADi\u00ADi\u00ADtion"_s};
    const MeasuredTexts measured = measureTexts(texts, font.face);
    ASSERT_EQ(measured.pieces.size(), static_cast<std::size_t>(texts.size()));
    double highest = 0;
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const auto& pieces = measured.pieces[static_cast<std::size_t>(i)];
        for (const double width : {819.0, 900.0, 2000.0, 4000.0, 9000.0, 1e6}) {
            const TextLayout layout = layOut(texts[i], font.face, 0, width, LineBreaks::Kept);
            EXPECT_EQ(rowCount(pieces, width), layout.rows.size())
                << texts[i].toStdString() << ' ' << width;
            const TextRow& row = layout.rows.front();
            highest = std::max(highest, row.ascent + row.descent);
        }
    }
    EXPECT_GE(measured.rowHeight, highest);
}

TEST(MeasuredTexts, AddUpToTheWidthInEveryDirection) {
    const TextFont font = shippedFace(u"fraunces"_s);
    for (const QString& text :
         {u"If you can dream it"_s, u"abc \u05D0\u05D1\u05D2 \u05D3\u05D4\u05D5 def"_s,
          u"\u05D0\u05D1 def \u05D2\u05D3"_s, u"un\u00ADbe\u00ADlievable"_s}) {
        double width = 0;
        const auto pieces = measureTexts({text}, font.face).pieces.front();
        for (const RowPiece& piece : pieces) {
            width += &piece == &pieces.back() ? piece.width : piece.advance;
        }
        const double expected = unbrokenWidth(text, font.face);
        EXPECT_NEAR(width, expected, 0.01 * expected) << text.toStdString();
    }
}
