// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <vector>

namespace morrowleaf {

// What is added to every pixel before it is rounded down to 8 bits: the film
// grain and the dither, in 64ths of a level, with four lanes (B, G, R, A) for
// each pixel. The grain repeats every 160 points, rounded to whole device pixels.
class GrainTile {
public:
    static constexpr int overhang = 8; // pixels repeated after each row

    // Makes the tile, unless it is there. `grainWeight` (0...1) scales the grain.
    // With `opaque` the alpha lane is large enough to give 255 after rounding.
    void build(double devicePixelRatio, double grainWeight, bool opaque);

    int size() const { return size_; }
    const qint16* row(int y) const {
        return lanes_.data() + start_ + static_cast<std::size_t>(y % size_) * stride();
    }

private:
    std::size_t stride() const { return static_cast<std::size_t>(size_ + overhang) * 4; }

    int size_ = 0;
    double weight_ = -1;
    bool opaque_ = false;
    std::vector<qint16> lanes_;
    std::size_t start_ = 0; // where a cache line begins
};

} // namespace morrowleaf
