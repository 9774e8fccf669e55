// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/begunglyphs.h"

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
QString withSeparatedLetters(const QString& text, const TextRow& row, qsizetype firstCharacter) {
    constexpr QChar nonJoiner(0x200C);
    const SetText set = setText(text, LineBreaks::Kept);
    QString separated;
    qsizetype copied = 0;
    for (const GlyphCluster& cluster : row.clusters) {
        for (qsizetype i = 0; i + 1 < cluster.characterCount; ++i) {
            const qsizetype character = cluster.firstCharacter - firstCharacter + i;
            if (set.kinds[static_cast<std::size_t>(character)] == CharacterKind::Joined) {
                const qsizetype end = set.originalEnds[character];
                separated += QStringView(text).mid(copied, end - copied);
                separated += nonJoiner;
                copied = end;
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

// `first` is the first character of the cluster among those apart.
void addTo(GlyphCluster& cluster, qsizetype first,
           const std::map<qsizetype, const GlyphCluster*>& apart) {
    std::vector<PlacedGlyph> glyphs;
    double shift = 0;
    for (qsizetype typed = 1; typed < cluster.characterCount; ++typed) {
        const auto next = apart.find(first + typed - 1);
        if (next == apart.end() || next->second->characterCount != 1) {
            return; // the face cannot separate them
        }
        const std::vector<PlacedGlyph>& more = next->second->glyphs;
        if (typed == 1) {
            const Extent whole = extentOf(cluster.glyphs);
            const Extent letter = extentOf(more);
            shift = cluster.rightToLeft ? whole.right - letter.right : whole.left - letter.left;
        }
        for (PlacedGlyph glyph : more) {
            glyph.position.rx() += shift;
            glyphs.push_back(std::move(glyph));
        }
        cluster.begun.push_back(glyphs);
    }
}

} // namespace

void addBegunGlyphs(TextRow& row, const QString& text, qsizetype firstCharacter,
                    const QFont& face) {
    if (std::ranges::none_of(row.clusters, isLigature)) {
        return;
    }
    const TextLayout letters = layOut(withSeparatedLetters(text, row, firstCharacter), face,
                                      leastTracking, 0, LineBreaks::Kept);
    std::map<qsizetype, const GlyphCluster*> apart; // by their first character
    for (const TextRow& separated : letters.rows) {
        for (const GlyphCluster& cluster : separated.clusters) {
            apart[cluster.firstCharacter] = &cluster;
        }
    }
    for (GlyphCluster& cluster : row.clusters) {
        addTo(cluster, cluster.firstCharacter - firstCharacter, apart);
    }
}

} // namespace morrowleaf
