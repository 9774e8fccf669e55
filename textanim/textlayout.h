// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "textanim/characters.h"
#include "textanim/fonts.h"
#include "textanim/rowbreaking.h"
#include "textanim/rowextents.h"

#include <QGlyphRun>
#include <QPointF>
#include <QRawFont>
#include <QRectF>
#include <QStringList>
#include <QTextLayout>

#include <memory>
#include <optional>
#include <vector>

namespace morrowleaf {

struct PlacedGlyph {
    QRawFont face; // at shapingSize
    quint32 index = 0;
    QPointF position;      // of its origin, from the row's left end and baseline
    double movedEdges = 0; // see withMovedEdges()

    bool operator==(const PlacedGlyph&) const = default;
};

// Characters that share glyphs (a ligature, a conjunct) and their glyphs.
struct GlyphCluster {
    qsizetype firstCharacter = 0;
    qsizetype characterCount = 0;
    bool rightToLeft = false;
    std::vector<PlacedGlyph> glyphs;
    // What stands there when 1, 2 … of several characters are typed; see addBegunGlyphs().
    std::vector<std::vector<PlacedGlyph>> begun;
    QRectF box{}; // in place of glyphs that cannot be told apart
};

// Lengths are in units of 1 / shapingSize of the font's size.
struct TextRow {
    std::vector<GlyphCluster> clusters; // in the order of the text
    double width = 0;
    double ascent = 0;
    double descent = 0; // positive downwards
};

struct TextLayout {
    std::vector<TextRow> rows;
    qsizetype characterCount = 0;
    bool rightToLeft = false; // according to its first character with a direction
    double lastTracking = 0;  // after the last character
};

// Shapes a text. `tracking`, which is left out between letters that join, and
// `maxWidth` are in the units of the result. Each line of the text becomes a row; if one
// is wider than a `maxWidth` above 0, all are broken at word boundaries into rows of
// nearly equal length, as few as possible. There is always at least one row.
TextLayout layOut(const QString& text, const QFont& face, double tracking, double maxWidth,
                  LineBreaks breaks);

// The same in two steps: the rows, and the glyphs of each when they are asked for.
class RowLayout {
public:
    // `pieces` are those of the text, if it has been measured; then it is not shaped
    // before its glyphs are asked for. Empty if it has not.
    RowLayout(const QString& text, const QFont& face, double tracking, double maxWidth,
              LineBreaks breaks, const std::vector<RowPiece>& pieces = {});

    // The layout, in which the rows have no clusters yet.
    const TextLayout& rows() const { return rows_; }

    // A row with its clusters. One unit of the layout is `unit` points long: in a row that
    // is scaled down too far to be read, boxes stand for the letters.
    TextRow row(std::size_t index, double unit) const;
    // What that row was made of: its own part of the text, or all of it.
    struct RowText {
        QString text;
        qsizetype firstCharacter = 0;
        qsizetype characterCount = 0;
    };
    const RowText& text(std::size_t row) const { return texts_[row]; }

private:
    struct Shaped {
        QList<qsizetype> ends; // of the characters
        std::unique_ptr<QTextLayout> layout;
        std::vector<QTextLine> lines;
    };
    Shaped shaped(const SetText& set, bool keepsSpaces) const;
    std::vector<GlyphCluster> boxes(std::size_t row) const;
    void makeRows(const QString& text, const SetText& set, const std::vector<RowPiece>& pieces,
                  double maxWidth);

    QFont face_;
    QRawFont requested_;
    double tracking_;
    LineBreaks breaks_;
    TextLayout rows_;
    std::vector<RowText> texts_;
    std::optional<Shaped> whole_; // if its rows are not broken
};

// Texts without their glyphs, in the units of TextRow.
struct MeasuredTexts {
    double rowHeight = 0; // of the highest row
    // layOut() breaks a text that is wider than its `maxWidth` into
    // rowCount(pieces, maxWidth) rows.
    std::vector<std::vector<RowPiece>> pieces;
};
MeasuredTexts measureTexts(const QStringList& texts, const QFont& face, double tracking = 0);

// The width of the widest row of a text whose rows are not broken.
double unbrokenWidth(const QString& text, const QFont& face);

} // namespace morrowleaf
