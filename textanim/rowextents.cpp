// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/rowextents.h"

#include "textanim/emojiface.h"

#include <QFont>
#include <QGlyphRun>
#include <QTextLayout>
#include <QtEndian>

#include <algorithm>
#include <optional>

namespace morrowleaf {

namespace {

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

RowExtents::Extents RowExtents::of(const QTextLine& line) {
    Extents extents = requested_;
    for (const QGlyphRun& run : line.glyphRuns()) {
        const QRawFont face = run.rawFont();
        const Extents own = extentsOf(face);
        if (own.ascent <= extents.ascent && own.descent <= extents.descent) {
            continue;
        }
        const QList<quint32> glyphs = run.glyphIndexes();
        if (std::ranges::any_of(glyphs, [&](quint32 glyph) { return shows(face, glyph); })) {
            extents.ascent = std::max(extents.ascent, own.ascent);
            extents.descent = std::max(extents.descent, own.descent);
        }
    }
    return extents;
}

// A joiner that the face of the text lacks becomes a space of another face, which makes
// a row no higher.
bool RowExtents::shows(const QRawFont& face, quint32 glyph) {
    const std::pair key(face, glyph);
    auto known = shown_.find(key);
    if (known == shown_.end()) {
        known = shown_.insert(key, face.familyName() == emojiFamily() ||
                                       !face.boundingRect(glyph).isEmpty());
    }
    return *known;
}

RowExtents::Extents RowExtents::extentsOf(const QRawFont& face) {
    const auto known =
        std::ranges::find_if(faces_, [&face](const auto& entry) { return entry.first == face; });
    if (known != faces_.end()) {
        return known->second;
    }
    faces_.emplace_back(face, Extents{ascentOf(face), descentOf(face)});
    return faces_.back().second;
}

} // namespace morrowleaf
