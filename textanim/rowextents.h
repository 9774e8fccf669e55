// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QRawFont>

#include <utility>
#include <vector>

class QFont;
class QTextLine;

namespace morrowleaf {

// Text is shaped at this size, in pixels, and scaled from there, so that
// fractional sizes are exact and all sizes look alike.
inline constexpr int shapingSize = 512;

QRawFont rawFace(const QFont& face); // at shapingSize

// Ascent and descent, both positive, of a face at shapingSize, as its font file gives them.
double ascentOf(const QRawFont& face);
double descentOf(const QRawFont& face);

// Finds how high rows are: as the requested face and all others whose glyphs show.
class RowExtents {
public:
    explicit RowExtents(const QRawFont& requested)
        : requested_(extentsOf(requested)) {}

    struct Extents {
        double ascent = 0;
        double descent = 0;
    };
    Extents of(const QTextLine& line);

private:
    bool shows(const QRawFont& face, quint32 glyph);
    Extents extentsOf(const QRawFont& face);

    std::vector<std::pair<QRawFont, Extents>> faces_;
    QHash<std::pair<QRawFont, quint32>, bool> shown_; // by glyph
    Extents requested_;
};

} // namespace morrowleaf
