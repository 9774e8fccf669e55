// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <vector>

namespace morrowleaf {

// The values that are added to every pixel before it is truncated to 8 bits: film
// grain plus dither, in 64ths of a level, with four lanes (B, G, R, A) for each
// pixel. The grain repeats every 160 points, rounded to whole device pixels.
class GrainTile {
public:
    static constexpr int overhang = 8; // pixels repeated after each row

    // Makes the tile, unless the last call had the same arguments. `grainWeight`
    // (0...1) scales the grain. If `opaque`, the alpha lane is large enough to
    // give 255 after truncation.
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
    std::size_t start_ = 0; // index of the first lane, which is aligned to a cache line
};

} // namespace morrowleaf
