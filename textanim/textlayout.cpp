// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/textlayout.h"

#include "textanim/emojiface.h"
#include "textanim/weightmatch.h"

#include <QFontMetricsF>
#include <QTextOption>

#include <algorithm>

namespace morrowleaf {

namespace {

// Close to the largest width that Qt's layout can represent.
constexpr double widestLine = 8'000'000;

// Letters of a smaller size, in points, cannot be told apart.
constexpr double illegibleBelow = 2;

QFont fontFor(CharacterKind kind, QFont font) {
    if (kind == CharacterKind::Joined) {
        font.setLetterSpacing(QFont::AbsoluteSpacing, 0);
    } else if (kind == CharacterKind::Emoji) {
        if (!emojiFamily().isEmpty()) {
            font.setFamilies(QStringList(emojiFamily()) + font.families());
        }
    }
    return font;
}

// What is not set as the rest of the text.
QList<QTextLayout::FormatRange> formatsFor(const SetText& set, const QFont& font) {
    QList<QTextLayout::FormatRange> formats;
    qsizetype begin = 0;
    auto last = CharacterKind::Plain;
    for (std::size_t i = 0; i < set.kinds.size(); ++i) {
        const CharacterKind kind = set.kinds[i];
        const auto length = static_cast<int>(set.ends[static_cast<qsizetype>(i)] - begin);
        const bool differs = kind == CharacterKind::Emoji ||
                             (kind == CharacterKind::Joined && font.letterSpacing() != 0);
        if (differs && kind == last) {
            formats.back().length += length;
        } else if (differs) {
            QTextLayout::FormatRange range;
            range.start = static_cast<int>(begin);
            range.length = length;
            range.format.setFont(fontFor(kind, font));
            formats.append(range);
        }
        last = kind;
        begin += length;
    }
    return formats;
}

struct CharacterRange {
    qsizetype begin, end;
};

std::vector<PlacedGlyph> glyphsIn(const QTextLine& line, CharacterRange range,
                                  const QRawFont& requested, bool* rightToLeft) {
    std::vector<PlacedGlyph> glyphs;
    const QPointF origin(line.x(), line.y() + line.ascent());
    const auto runs =
        line.glyphRuns(static_cast<int>(range.begin), static_cast<int>(range.end - range.begin));
    for (const QGlyphRun& run : runs) {
        *rightToLeft = run.isRightToLeft();
        const QRawFont face = run.rawFont();
        const double movedEdges =
            face == requested ? 0 : weightCorrection(face, requested) * shapingSize;
        const QList<quint32> indexes = run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        for (qsizetype i = 0; i < indexes.size(); ++i) {
            glyphs.push_back({face, indexes[i], positions[i] - origin, movedEdges});
        }
    }
    return glyphs;
}

bool shareGlyph(const std::vector<PlacedGlyph>& some, const std::vector<PlacedGlyph>& others) {
    return std::ranges::any_of(some, [&others](const PlacedGlyph& glyph) {
        return std::ranges::find(others, glyph) != others.end();
    });
}

std::vector<GlyphCluster> clustersOf(const QTextLine& line, const QList<qsizetype>& characterEnds,
                                     const QRawFont& requested) {
    std::vector<GlyphCluster> clusters;
    const qsizetype lineEnd = line.textStart() + line.textLength();
    auto end = std::ranges::upper_bound(characterEnds, qsizetype{line.textStart()});
    qsizetype begin = line.textStart();
    for (; end != characterEnds.end() && begin < lineEnd; begin = *end, ++end) {
        if (*end == begin) {
            continue; // a control character
        }
        GlyphCluster cluster{end - characterEnds.begin(), 1, false, {}, {}};
        cluster.glyphs =
            glyphsIn(line, {begin, std::min(*end, lineEnd)}, requested, &cluster.rightToLeft);
        if (!clusters.empty() && shareGlyph(clusters.back().glyphs, cluster.glyphs)) {
            GlyphCluster& last = clusters.back();
            ++last.characterCount;
            for (PlacedGlyph& glyph : cluster.glyphs) {
                if (std::ranges::find(last.glyphs, glyph) == last.glyphs.end()) {
                    last.glyphs.push_back(std::move(glyph));
                }
            }
        } else if (!cluster.glyphs.empty()) {
            clusters.push_back(std::move(cluster));
        }
    }
    return clusters;
}

void prepare(QTextLayout& layout, const SetText& set, const QFont& face, double tracking,
             bool rightToLeft) {
    QFont large = face;
    large.setPixelSize(shapingSize);
    if (tracking != 0) {
        large.setLetterSpacing(QFont::AbsoluteSpacing, tracking);
    }
    QTextOption option;
    option.setUseDesignMetrics(true);
    // With Qt::LayoutDirectionAuto, QTextLayout would look for it again and again.
    option.setTextDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::WordWrap);
    layout.setCacheEnabled(true); // otherwise its glyphs would be shaped again when they are read
    layout.setFont(large);
    layout.setText(set.text);
    layout.setTextOption(option);
    layout.setFormats(formatsFor(set, large));
}

void keepTrailingSpaces(QTextLayout& layout) {
    QTextOption option = layout.textOption();
    option.setWrapMode(QTextOption::ManualWrap);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    layout.setTextOption(option);
}

// In lines no wider than `width`, unless a word is. With 0, each line is one piece.
std::vector<QTextLine> linesOf(QTextLayout& layout, double width) {
    std::vector<QTextLine> lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, 0});
        lines.push_back(line);
    }
    layout.endLayout();
    return lines;
}

double widestOf(const std::vector<QTextLine>& lines) {
    double width = 0;
    for (const QTextLine& line : lines) {
        width = std::max(width, line.naturalTextWidth());
    }
    return width;
}

qsizetype endOf(const QTextLine& line) {
    return line.textStart() + line.textLength();
}

// The piece of a line that is one. White space at its end does not count where a row
// ends, and a soft hyphen counts only there.
RowPiece pieceOf(const QTextLine& line, const QTextLayout& layout) {
    const QString text = layout.text().mid(line.textStart(), line.textLength());
    RowPiece piece{line.naturalTextWidth(), line.naturalTextWidth(),
                   endOf(line) == layout.text().size() || text.endsWith(QChar::LineSeparator),
                   endOf(line)};
    const auto advance = [&](const QString& part) {
        return QFontMetricsF(layout.font()).horizontalAdvance(part);
    };
    qsizetype inkEnd = text.size();
    while (inkEnd > 0 && text[inkEnd - 1].isSpace()) {
        --inkEnd;
    }
    if (text.endsWith(QChar::SoftHyphen)) {
        piece.advance -= advance(QStringLiteral("-"));
    } else if (inkEnd < text.size() && !piece.endsRow) {
        piece.advance += advance(text.mid(inkEnd));
    }
    return piece;
}

// Where no row ends a soft hyphen is not drawn, but Qt leaves room for it.
SetText withoutSoftHyphens(const SetText& set) {
    SetText result{{}, {}, set.originalEnds, set.kinds};
    qsizetype begin = 0;
    for (const qsizetype end : set.ends) {
        result.text += set.text.mid(begin, end - begin).remove(QChar(QChar::SoftHyphen));
        result.ends.append(result.text.size());
        begin = end;
    }
    return result;
}

// A row as a text of its own: without white space at its end, and with the hyphen that
// is shown there.
QString rowText(const QString& text, bool isLast) {
    if (isLast) {
        return text;
    }
    QString row = text;
    if (row.endsWith(QChar::SoftHyphen)) {
        row.back() = u'-';
    }
    while (!row.isEmpty() && row.back().isSpace()) {
        row.chop(1);
    }
    return row;
}

std::vector<RowPiece> piecesOf(const SetText& set, const QFont& face, double tracking,
                               RowExtents& extents) {
    QTextLayout layout;
    prepare(layout, set, face, tracking, set.text.isRightToLeft());
    std::vector<RowPiece> pieces;
    for (const QTextLine& line : linesOf(layout, 0)) {
        pieces.push_back(pieceOf(line, layout));
        const RowExtents::Extents own = extents.of(line);
        pieces.back().ascent = own.ascent;
        pieces.back().descent = own.descent;
    }
    return pieces;
}

} // namespace

RowLayout::RowLayout(const QString& text, const QFont& face, double tracking, double maxWidth,
                     LineBreaks breaks, const std::vector<RowPiece>& pieces)
    : face_(face)
    , requested_(rawFace(face))
    , tracking_(tracking)
    , breaks_(breaks) {
    SetText set = setText(text, breaks);
    rows_.rightToLeft = text.isRightToLeft();
    rows_.characterCount = set.ends.size();
    if (!set.kinds.empty() && set.kinds.back() != CharacterKind::Joined) {
        rows_.lastTracking = tracking;
    }
    if (maxWidth > 0 && !pieces.empty()) {
        makeRows(text, set, pieces, maxWidth);
        return;
    }
    whole_ = shaped(set, maxWidth <= 0);
    RowExtents extents(requested_);
    if (maxWidth > 0 && widestOf(whole_->lines) > maxWidth) {
        makeRows(text, set, piecesOf(set, face, tracking, extents), maxWidth);
        whole_.reset();
        return;
    }
    if (set.text.contains(QChar::SoftHyphen)) {
        set = withoutSoftHyphens(set);
        whole_ = shaped(set, maxWidth <= 0);
    }
    for (const QTextLine& line : whole_->lines) {
        const RowExtents::Extents own = extents.of(line);
        rows_.rows.push_back({{}, line.naturalTextWidth(), own.ascent, own.descent});
    }
    if (rows_.rows.empty()) {
        rows_.rows.push_back({{}, 0, ascentOf(requested_), descentOf(requested_)});
    }
    texts_.assign(rows_.rows.size(), {text, 0, rows_.characterCount});
}

RowLayout::Shaped RowLayout::shaped(const SetText& set, bool keepsSpaces) const {
    Shaped result{set.ends, std::make_unique<QTextLayout>(), {}};
    prepare(*result.layout, set, face_, tracking_, rows_.rightToLeft);
    if (keepsSpaces) {
        keepTrailingSpaces(*result.layout);
    }
    result.lines = linesOf(*result.layout, widestLine);
    return result;
}

void RowLayout::makeRows(const QString& text, const SetText& set,
                         const std::vector<RowPiece>& pieces, double maxWidth) {
    std::size_t piece = 0;
    qsizetype character = 0;
    qsizetype begin = 0; // of the row in the text
    for (const std::size_t end : breakRows(pieces, maxWidth)) {
        TextRow row{{}, pieces[end - 1].width - pieces[end - 1].advance, 0, 0};
        for (; piece < end; ++piece) {
            row.width += pieces[piece].advance;
            row.ascent = std::max(row.ascent, pieces[piece].ascent);
            row.descent = std::max(row.descent, pieces[piece].descent);
        }
        rows_.rows.push_back(std::move(row));
        const bool isLast = end == pieces.size();
        const qsizetype next =
            isLast ? set.ends.size()
                   : std::ranges::upper_bound(set.ends, pieces[end - 1].end) - set.ends.begin();
        const qsizetype rowEnd = isLast ? text.size() : set.originalEnds[next - 1];
        texts_.push_back(
            {rowText(text.mid(begin, rowEnd - begin), isLast), character, next - character});
        character = next;
        begin = rowEnd;
    }
}

TextRow RowLayout::row(std::size_t index, double unit) const {
    TextRow row = rows_.rows[index];
    if (whole_) {
        if (index < whole_->lines.size()) {
            row.clusters = clustersOf(whole_->lines[index], whole_->ends, requested_);
        }
        return row;
    }
    if (unit * shapingSize < illegibleBelow) {
        row.clusters = boxes(index);
        return row;
    }
    const Shaped own = shaped(withoutSoftHyphens(setText(texts_[index].text, breaks_)), false);
    if (!own.lines.empty()) {
        row.clusters = clustersOf(own.lines.front(), own.ends, requested_);
    }
    for (GlyphCluster& cluster : row.clusters) {
        cluster.firstCharacter += texts_[index].firstCharacter;
    }
    return row;
}

std::vector<GlyphCluster> RowLayout::boxes(std::size_t row) const {
    const double height = 0.4 * shapingSize; // about that of small letters
    const auto [text, first, count] = texts_[row];
    const double advance = rows_.rows[row].width / static_cast<double>(count);
    std::vector<GlyphCluster> clusters;
    for (qsizetype i = 0; i < count; ++i) {
        const auto place = static_cast<double>(rows_.rightToLeft ? count - 1 - i : i);
        GlyphCluster cluster{first + i, 1, rows_.rightToLeft, {}, {}};
        cluster.box = {place * advance, -height, 0.8 * advance, height};
        clusters.push_back(std::move(cluster));
    }
    return clusters;
}

TextLayout layOut(const QString& text, const QFont& face, double tracking, double maxWidth,
                  LineBreaks breaks) {
    const RowLayout layout(text, face, tracking, maxWidth, breaks);
    TextLayout whole = layout.rows();
    for (std::size_t i = 0; i < whole.rows.size(); ++i) {
        whole.rows[i] = layout.row(i, 1);
    }
    return whole;
}

MeasuredTexts measureTexts(const QStringList& texts, const QFont& face, double tracking) {
    SetText all;
    std::vector<qsizetype> ends;
    for (const QString& text : texts) {
        const SetText set = setText(text, LineBreaks::Kept);
        for (const qsizetype end : set.ends) {
            all.ends.append(all.text.size() + end);
        }
        all.kinds.insert(all.kinds.end(), set.kinds.begin(), set.kinds.end());
        all.text += set.text + QChar(QChar::LineSeparator);
        ends.push_back(all.text.size());
    }
    const QRawFont requested = rawFace(face);
    RowExtents extents(requested);
    double ascent = ascentOf(requested);
    double descent = descentOf(requested);
    MeasuredTexts result;
    result.pieces.resize(ends.size());
    std::size_t text = 0;
    qsizetype begin = 0; // of the text
    for (RowPiece piece : piecesOf(all, face, tracking, extents)) {
        if (text == ends.size()) {
            break; // after the last separator
        }
        ascent = std::max(ascent, piece.ascent);
        descent = std::max(descent, piece.descent);
        const bool isLast = piece.end == ends[text];
        piece.end -= begin + (isLast ? 1 : 0);
        result.pieces[text].push_back(piece);
        if (isLast) {
            begin = ends[text++];
        }
    }
    result.rowHeight = ascent + descent;
    return result;
}

double unbrokenWidth(const QString& text, const QFont& face) {
    QTextLayout layout;
    prepare(layout, setText(text, LineBreaks::Kept), face, 0, text.isRightToLeft());
    return widestOf(linesOf(layout, widestLine));
}

} // namespace morrowleaf
