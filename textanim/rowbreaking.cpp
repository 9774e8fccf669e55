// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/rowbreaking.h"

#include <algorithm>
#include <cmath>

namespace morrowleaf {

namespace {

// The index after the last piece of the longest row that begins with piece `begin`.
std::size_t longestRowEnd(const std::vector<RowPiece>& pieces, std::size_t begin, double maxWidth) {
    double advance = 0;
    for (std::size_t i = begin; i < pieces.size(); ++i) {
        if (i > begin && advance + pieces[i].width > maxWidth) {
            return i;
        }
        if (pieces[i].endsRow) {
            return i + 1;
        }
        advance += pieces[i].advance;
    }
    return pieces.size();
}

// The fewest rows for what follows each piece; the last entry is 0.
std::vector<std::size_t> rowsFrom(const std::vector<RowPiece>& pieces, double maxWidth) {
    std::vector<std::size_t> rows(pieces.size() + 1, 0);
    for (std::size_t i = pieces.size(); i-- > 0;) {
        rows[i] = 1 + rows[longestRowEnd(pieces, i, maxWidth)];
    }
    return rows;
}

} // namespace

std::size_t rowCount(const std::vector<RowPiece>& pieces, double maxWidth) {
    std::size_t rows = 0;
    for (std::size_t i = 0; i < pieces.size(); i = longestRowEnd(pieces, i, maxWidth)) {
        ++rows;
    }
    return rows;
}

std::vector<std::size_t> breakRows(const std::vector<RowPiece>& pieces, double maxWidth) {
    const std::vector<std::size_t> rows = rowsFrom(pieces, maxWidth);
    std::vector<std::size_t> ends;
    for (std::size_t begin = 0; begin < pieces.size();) {
        std::size_t paragraphEnd = begin;
        double left = 0;
        while (paragraphEnd < pieces.size()) {
            left += pieces[paragraphEnd].advance;
            if (pieces[paragraphEnd++].endsRow) {
                break;
            }
        }
        // A row ends where it comes closest to the mean of the rows that are left,
        // unless the others could not hold the rest.
        while (begin < paragraphEnd) {
            const std::size_t later = rows[begin] - 1;
            const double mean = left / static_cast<double>(rows[begin] - rows[paragraphEnd]);
            const std::size_t last = longestRowEnd(pieces, begin, maxWidth);
            std::size_t end = begin + 1;
            double length = pieces[begin].advance;
            while (end < last && (rows[end] > later || length + pieces[end].advance / 2 <= mean)) {
                length += pieces[end++].advance;
            }
            ends.push_back(end);
            left -= length;
            begin = end;
        }
    }
    return ends;
}

} // namespace morrowleaf
