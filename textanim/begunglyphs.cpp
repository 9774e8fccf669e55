// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/begunglyphs.h"

#include "base/graphemes.h"
#include "textanim/textlayout.h"

#include <algorithm>
#include <map>

namespace morrowleaf {

namespace {

// Enough, in units of the layout, for ligatures that do not join letters to be left out.
constexpr double leastTracking = 1.0 / 64;

bool isLigature(const GlyphCluster& cluster) {
    return cluster.characterCount > 1;
}

// Separates the letters of ligatures where tracking does not, in scripts whose letters
// join. The number of characters stays the same.
QString withSeparatedLetters(const QString& text, const TextLayout& layout) {
    constexpr QChar nonJoiner(0x200C);
    const std::vector<CharacterKind> kinds = setText(text, LineBreaks::Kept).kinds;
    const QList<qsizetype> ends = characterEnds(text);
    QString separated;
    qsizetype copied = 0;
    for (const TextRow& row : layout.rows) {
        for (const GlyphCluster& cluster : row.clusters) {
            for (qsizetype i = 0; i + 1 < cluster.characterCount; ++i) {
                const qsizetype character = cluster.firstCharacter + i;
                if (kinds[static_cast<std::size_t>(character)] == CharacterKind::Joined) {
                    separated += QStringView(text).mid(copied, ends[character] - copied);
                    separated += nonJoiner;
                    copied = ends[character];
                }
            }
        }
    }
    return separated.append(QStringView(text).mid(copied));
}

struct Extent {
    double left = 0;
    double right = 0;
};

Extent extentOf(const std::vector<PlacedGlyph>& glyphs) {
    Extent extent;
    for (std::size_t i = 0; i < glyphs.size(); ++i) {
        const double left = glyphs[i].position.x();
        const QList<QPointF> advance = glyphs[i].face.advancesForGlyphIndexes({glyphs[i].index});
        const double right = left + (advance.isEmpty() ? 0 : advance.front().x());
        extent.left = i == 0 ? left : std::min(extent.left, left);
        extent.right = i == 0 ? right : std::max(extent.right, right);
    }
    return extent;
}

void addTo(GlyphCluster& cluster, const std::map<qsizetype, const GlyphCluster*>& apart) {
    std::vector<PlacedGlyph> glyphs;
    double shift = 0;
    for (qsizetype typed = 1; typed < cluster.characterCount; ++typed) {
        const auto next = apart.find(cluster.firstCharacter + typed - 1);
        if (next == apart.end() || next->second->characterCount != 1) {
            return; // the face cannot separate them
        }
        const std::vector<PlacedGlyph>& more = next->second->glyphs;
        if (typed == 1) {
            const Extent whole = extentOf(cluster.glyphs);
            const Extent first = extentOf(more);
            shift = cluster.rightToLeft ? whole.right - first.right : whole.left - first.left;
        }
        for (PlacedGlyph glyph : more) {
            glyph.position.rx() += shift;
            glyphs.push_back(std::move(glyph));
        }
        cluster.begun.push_back(glyphs);
    }
}

} // namespace

void addBegunGlyphs(TextLayout& layout, const QString& text, const QFont& face) {
    const bool hasLigatures = std::ranges::any_of(layout.rows, [](const TextRow& row) {
        return std::ranges::any_of(row.clusters, isLigature);
    });
    if (!hasLigatures) {
        return;
    }
    const TextLayout letters =
        layOut(withSeparatedLetters(text, layout), face, leastTracking, 0, LineBreaks::Kept);
    std::map<qsizetype, const GlyphCluster*> apart; // by their first character
    for (const TextRow& row : letters.rows) {
        for (const GlyphCluster& cluster : row.clusters) {
            apart[cluster.firstCharacter] = &cluster;
        }
    }
    for (TextRow& row : layout.rows) {
        for (GlyphCluster& cluster : row.clusters) {
            addTo(cluster, apart);
        }
    }
}

} // namespace morrowleaf
