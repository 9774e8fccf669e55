// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <vector>

namespace morrowleaf {

// What is added to every pixel before it is cut to 8 bits: the film grain and
// the dither, in 64ths of a level, four lanes (B, G, R, A) a pixel. The grain
// is tiled at 160 points; a tile that is no whole number of device pixels is
// rounded to one.
class GrainTile {
public:
    static constexpr int overhang = 8; // pixels repeated after each row

    // `grainWeight` 0...1 scales the grain, and 0 leaves the dither alone.
    // `opaque` lifts the alpha lane beyond any rounding.
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
