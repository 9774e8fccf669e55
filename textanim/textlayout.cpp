// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/textlayout.h"

#include "textanim/emojiface.h"
#include "textanim/weightmatch.h"

#include <QPainterPath>
#include <QTextBoundaryFinder>
#include <QTextLayout>
#include <QTextOption>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <iterator>

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
    return face.pathForGlyph(glyph).isEmpty() && face.boundingRect(glyph).isEmpty() &&
           face.familyName() != emojiFamily();
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

std::vector<QTextLine> unbrokenLines(QTextLayout& layout) {
    std::vector<QTextLine> lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(widestLine);
        line.setPosition({0, 0});
        lines.push_back(line);
    }
    layout.endLayout();
    return lines;
}

struct PlacedPiece {
    RowPiece piece;
    qsizetype end = 0; // of its text, UTF-16 units
};

// The pieces of a layout of unbroken lines.
std::vector<PlacedPiece> piecesOf(const QTextLayout& layout) {
    const QString text = layout.text();
    std::vector<PlacedPiece> pieces;
    QTextBoundaryFinder boundary(QTextBoundaryFinder::Line, text);
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        const qsizetype lineEnd = line.textStart() + line.textLength();
        const auto place = [&line](qsizetype at) { return line.cursorToX(static_cast<int>(at)); };
        qsizetype begin = line.textStart();
        while (begin < lineEnd) {
            boundary.setPosition(begin);
            const qsizetype next = boundary.toNextBoundary();
            const qsizetype end = next < 0 ? lineEnd : std::min(next, lineEnd);
            qsizetype inkEnd = end;
            while (inkEnd > begin && text[inkEnd - 1].isSpace()) {
                --inkEnd;
            }
            pieces.push_back({{std::abs(place(inkEnd) - place(begin)),
                               std::abs(place(end) - place(begin)), end == lineEnd},
                              end});
            begin = end;
        }
    }
    return pieces;
}

std::vector<QTextLine> brokenLines(QTextLayout& layout, const std::vector<PlacedPiece>& placed,
                                   double maxWidth) {
    std::vector<RowPiece> pieces;
    pieces.reserve(placed.size());
    std::ranges::transform(placed, std::back_inserter(pieces), &PlacedPiece::piece);
    const std::vector<std::size_t> ends = breakRows(pieces, maxWidth);
    std::vector<QTextLine> lines;
    std::size_t piece = 0;
    auto end = ends.begin();
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        double width = 0;
        for (; end != ends.end() && piece < *end; ++piece) {
            width += pieces[piece].advance;
        }
        // With half of the next piece added, Qt's rounding cannot move a break.
        const bool endsRow = piece == 0 || piece == pieces.size() || pieces[piece - 1].endsRow;
        line.setLineWidth(
            endsRow ? widestLine
                    : std::min(width + std::max(pieces[piece].width / 2, 1.0), widestLine));
        line.setPosition({0, 0});
        lines.push_back(line);
        const qsizetype lineEnd = line.textStart() + line.textLength();
        piece = static_cast<std::size_t>(
            std::ranges::upper_bound(placed, lineEnd, {}, &PlacedPiece::end) - placed.begin());
        while (end != ends.end() && *end <= piece) {
            ++end;
        }
    }
    layout.endLayout();
    return lines;
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
    const SetText set = setText(text, breaks);
    prepare(layout, set, face, tracking);
    if (maxWidth <= 0) {
        keepTrailingSpaces(layout);
    }
    std::vector<QTextLine> lines = unbrokenLines(layout);
    const bool fits = std::ranges::all_of(
        lines, [&](const QTextLine& line) { return line.naturalTextWidth() <= maxWidth; });
    if (maxWidth > 0 && !fits) {
        lines = brokenLines(layout, piecesOf(layout), maxWidth);
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

MeasuredText measureText(const QString& text, const QFont& face, double tracking) {
    QTextLayout layout;
    prepare(layout, setText(text, LineBreaks::Kept), face, tracking);
    const QRawFont requested = rawFace(face);
    MeasuredText result{0, ascentOf(requested), descentOf(requested), {}};
    for (const QTextLine& line : unbrokenLines(layout)) {
        result.width = std::max(result.width, line.naturalTextWidth());
        for (const QGlyphRun& run : line.glyphRuns()) {
            const QRawFont own = run.rawFont();
            const QList<quint32> glyphs = run.glyphIndexes();
            if (own != requested && std::ranges::all_of(glyphs, [&own](quint32 glyph) {
                    return isNothing(own, glyph);
                })) {
                continue;
            }
            result.ascent = std::max(result.ascent, ascentOf(run.rawFont()));
            result.descent = std::max(result.descent, descentOf(run.rawFont()));
        }
    }
    for (const PlacedPiece& piece : piecesOf(layout)) {
        result.pieces.push_back(piece.piece);
    }
    return result;
}

} // namespace morrowleaf
