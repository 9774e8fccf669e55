// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "textanim/characters.h"
#include "textanim/fonts.h"
#include "textanim/rowbreaking.h"

#include <QGlyphRun>
#include <QPointF>
#include <QRawFont>
#include <QStringList>

#include <vector>

namespace morrowleaf {

// Text is shaped at this size, in pixels, and scaled from there, so that
// fractional sizes are exact and all sizes look alike.
inline constexpr int shapingSize = 512;

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

// Ascent and descent, both positive, of a face at shapingSize, as its font file gives them.
double ascentOf(const QRawFont& face);
double descentOf(const QRawFont& face);
QRawFont rawFace(const QFont& face);

// Shapes a text. `tracking`, which is left out between letters that join, and
// `maxWidth` are in the units of the result. Each
// line of the text becomes a row; if one is wider than a `maxWidth` above 0, all are
// broken at word boundaries into rows of nearly equal length, as few as possible.
// There is always at least one row.
TextLayout layOut(const QString& text, const QFont& face, double tracking, double maxWidth,
                  LineBreaks breaks);

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
