// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/textlayout.h"

#include "textanim/emojiface.h"
#include "textanim/weightmatch.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <QTextLayout>
#include <QTextOption>
#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace morrowleaf {

namespace {

// Close to the largest width that Qt's layout can represent.
constexpr double widestLine = 8'000'000;

// Read from the file because QRawFont does not know it for a face of bitmaps only.
double unitsPerEm(const QRawFont& face) {
    const QByteArray head = face.fontTable("head");
    return head.size() >= 20 ? qFromBigEndian<quint16>(head.constData() + 18) : face.unitsPerEm();
}

std::optional<double> verticalMetric(const QRawFont& face, qsizetype offset) {
    const QByteArray header = face.fontTable("hhea");
    const double perEm = unitsPerEm(face);
    if (header.size() < offset + 2 || perEm <= 0) {
        return std::nullopt;
    }
    const auto units = qFromBigEndian<qint16>(header.constData() + offset);
    if (units == 0) {
        return std::nullopt;
    }
    return units * double{shapingSize} / perEm;
}

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

// A joiner that the face of the text lacks becomes a space of another face.
bool isNothing(const QRawFont& face, quint32 glyph) {
    return face.familyName() != emojiFamily() && face.boundingRect(glyph).isEmpty();
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

TextRow rowOf(const QTextLine& line, const QList<qsizetype>& characterEnds,
              const QRawFont& requested) {
    TextRow row;
    row.width = line.naturalTextWidth();
    row.ascent = ascentOf(requested);
    row.descent = descentOf(requested);
    std::vector<QRawFont> faces{requested};
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
        for (const PlacedGlyph& glyph : cluster.glyphs) {
            if (std::ranges::find(faces, glyph.face) == faces.end() &&
                !isNothing(glyph.face, glyph.index)) {
                faces.push_back(glyph.face);
                row.ascent = std::max(row.ascent, ascentOf(glyph.face));
                row.descent = std::max(row.descent, descentOf(glyph.face));
            }
        }
        if (!row.clusters.empty() && shareGlyph(row.clusters.back().glyphs, cluster.glyphs)) {
            GlyphCluster& last = row.clusters.back();
            ++last.characterCount;
            for (PlacedGlyph& glyph : cluster.glyphs) {
                if (std::ranges::find(last.glyphs, glyph) == last.glyphs.end()) {
                    last.glyphs.push_back(std::move(glyph));
                }
            }
        } else {
            row.clusters.push_back(std::move(cluster));
        }
    }
    return row;
}

void prepare(QTextLayout& layout, const SetText& set, const QFont& face, double tracking) {
    QFont large = face;
    large.setPixelSize(shapingSize);
    if (tracking != 0) {
        large.setLetterSpacing(QFont::AbsoluteSpacing, tracking);
    }
    QTextOption option;
    option.setUseDesignMetrics(true);
    // With Qt::LayoutDirectionAuto, QTextLayout would look for it again and again.
    option.setTextDirection(set.text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::WordWrap);
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
                   endOf(line) == layout.text().size() || text.endsWith(QChar::LineSeparator)};
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
    SetText result{{}, {}, set.kinds};
    qsizetype begin = 0;
    for (const qsizetype end : set.ends) {
        result.text += set.text.mid(begin, end - begin).remove(QChar(QChar::SoftHyphen));
        result.ends.append(result.text.size());
        begin = end;
    }
    return result;
}

// The same text with a line separator at the end of each row but the last, in place
// of white space there.
SetText withRows(const SetText& set, const std::vector<qsizetype>& rowEnds) {
    SetText result{{}, set.ends, set.kinds};
    auto character = result.ends.begin();
    qsizetype begin = 0;
    for (const qsizetype rowEnd : rowEnds) {
        QString row = set.text.mid(begin, rowEnd - begin);
        if (rowEnd < set.text.size()) {
            if (row.endsWith(QChar::SoftHyphen)) {
                row.back() = u'-';
            }
            while (!row.isEmpty() && row.back().isSpace()) {
                row.chop(1);
            }
            row += QChar::LineSeparator;
        }
        const qsizetype start = result.text.size();
        result.text += row;
        for (; character != result.ends.end() && *character <= rowEnd; ++character) {
            const bool isLast = *character == rowEnd;
            const qsizetype inRow = *character - begin;
            *character = start + (isLast ? row.size() : std::min(inRow, row.size() - 1));
        }
        begin = rowEnd;
    }
    return result;
}

// Breaks into rows where a line is wider than the column.
SetText brokenText(const SetText& set, QTextLayout& layout, double maxWidth) {
    std::vector<RowPiece> pieces;
    std::vector<qsizetype> pieceEnds;
    for (const QTextLine& line : linesOf(layout, 0)) {
        pieces.push_back(pieceOf(line, layout));
        pieceEnds.push_back(endOf(line));
    }
    std::vector<qsizetype> rowEnds;
    for (const std::size_t end : breakRows(pieces, maxWidth)) {
        rowEnds.push_back(pieceEnds[end - 1]);
    }
    return withRows(set, rowEnds);
}

} // namespace

QRawFont rawFace(const QFont& face) {
    QFont large = face;
    large.setPixelSize(shapingSize);
    return QRawFont::fromFont(large);
}

double ascentOf(const QRawFont& face) {
    return verticalMetric(face, 4).value_or(face.ascent());
}

double descentOf(const QRawFont& face) {
    const auto metric = verticalMetric(face, 6);
    return metric ? -*metric : face.descent();
}

TextLayout layOut(const QString& text, const QFont& face, double tracking, double maxWidth,
                  LineBreaks breaks) {
    QTextLayout layout;
    SetText set = setText(text, breaks);
    prepare(layout, set, face, tracking);
    if (maxWidth <= 0) {
        keepTrailingSpaces(layout);
    }
    std::vector<QTextLine> lines = linesOf(layout, widestLine);
    if (maxWidth > 0 && widestOf(lines) > maxWidth) {
        set = brokenText(set, layout, maxWidth);
    }
    if (set.text.contains(QChar::SoftHyphen)) {
        set = withoutSoftHyphens(set);
    }
    if (set.text != layout.text()) {
        prepare(layout, set, face, tracking);
        lines = linesOf(layout, widestLine);
    }

    TextLayout result;
    result.rightToLeft = text.isRightToLeft();
    result.characterCount = set.ends.size();
    if (!set.kinds.empty() && set.kinds.back() != CharacterKind::Joined) {
        result.lastTracking = tracking;
    }
    const QRawFont requested = rawFace(face);
    for (const QTextLine& line : lines) {
        result.rows.push_back(rowOf(line, set.ends, requested));
    }
    if (result.rows.empty()) {
        result.rows.push_back({{}, 0, ascentOf(requested), descentOf(requested)});
    }
    return result;
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
    QTextLayout layout;
    prepare(layout, all, face, tracking);

    std::vector<QRawFont> faces{rawFace(face)};
    double ascent = ascentOf(faces.front());
    double descent = descentOf(faces.front());
    MeasuredTexts result;
    result.pieces.resize(ends.size());
    auto pieces = result.pieces.begin();
    for (const QTextLine& line : linesOf(layout, 0)) {
        if (pieces == result.pieces.end()) {
            break; // after the last separator
        }
        pieces->push_back(pieceOf(line, layout));
        if (endOf(line) == ends[static_cast<std::size_t>(pieces - result.pieces.begin())]) {
            ++pieces;
        }
        for (const QGlyphRun& run : line.glyphRuns()) {
            const QRawFont own = run.rawFont();
            if (std::ranges::find(faces, own) != faces.end()) {
                continue;
            }
            const QList<quint32> glyphs = run.glyphIndexes();
            if (std::ranges::all_of(glyphs,
                                    [&own](quint32 glyph) { return isNothing(own, glyph); })) {
                continue; // a joiner from another face makes a row no higher
            }
            faces.push_back(own);
            ascent = std::max(ascent, ascentOf(own));
            descent = std::max(descent, descentOf(own));
        }
    }
    result.rowHeight = ascent + descent;
    return result;
}

double unbrokenWidth(const QString& text, const QFont& face) {
    QTextLayout layout;
    prepare(layout, setText(text, LineBreaks::Kept), face, 0);
    return widestOf(linesOf(layout, widestLine));
}

} // namespace morrowleaf
