// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "textanim/fonts.h"
#include "textanim/textlayout.h"

#include <vector>

namespace morrowleaf {

// The glyphs of a text in one row, in the order of the text.
inline std::vector<PlacedGlyph> glyphsOf(const QString& text, const TextFont& font) {
    std::vector<PlacedGlyph> glyphs;
    for (const TextRow& row : layOut(text, font.face, 0, 0, LineBreaks::Kept).rows) {
        for (const GlyphCluster& cluster : row.clusters) {
            glyphs.insert(glyphs.end(), cluster.glyphs.begin(), cluster.glyphs.end());
        }
    }
    return glyphs;
}

// Whether an installed face has every character: tests of a script would otherwise only
// see the box that stands for a missing one.
inline bool hasGlyphs(const QString& text, const TextFont& font) {
    bool has = !text.isEmpty();
    for (const PlacedGlyph& glyph : glyphsOf(text, font)) {
        has = has && glyph.index != 0;
    }
    return has;
}

} // namespace morrowleaf
