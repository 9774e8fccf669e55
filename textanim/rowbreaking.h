// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <vector>

namespace morrowleaf {

// A stretch of text between two places where a row may end. Lengths are in any unit.
struct RowPiece {
    double width = 0;   // without the white space at its end, which may hang over the row's end
    double advance = 0; // from its beginning to that of the next piece
    bool endsRow = false;
    // Where rows are made of pieces: the end in the text, and the extents of its faces.
    std::ptrdiff_t end = 0;
    double ascent = 0;
    double descent = 0;
};

// The fewest rows that no piece sticks out of; a piece wider than `maxWidth` has a
// row of its own.
std::size_t rowCount(const std::vector<RowPiece>& pieces, double maxWidth);

// Breaks into that many rows of nearly equal length: for each row, the index of
// the piece after its last one.
std::vector<std::size_t> breakRows(const std::vector<RowPiece>& pieces, double maxWidth);

} // namespace morrowleaf
