// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/graintile.h"

#include "look/dither.h"
#include "look/grain.h"

#include <algorithm>
#include <cmath>

namespace morrowleaf {

void GrainTile::build(double devicePixelRatio, double grainWeight, bool opaque) {
    const int size = std::max(1, static_cast<int>(std::lround(grainSize * devicePixelRatio)));
    if (size == size_ && grainWeight == weight_ && opaque == opaque_) {
        return;
    }
    size_ = size;
    weight_ = grainWeight;
    opaque_ = opaque;
    constexpr std::size_t cacheLine = 64; // bytes
    lanes_.resize(stride() * static_cast<std::size_t>(size) + cacheLine / sizeof(qint16));
    const auto address = reinterpret_cast<std::size_t>(lanes_.data());
    start_ = (cacheLine - address % cacheLine) % cacheLine / sizeof(qint16);
    std::array<qint16, 256> grainLevels;
    for (std::size_t g = 0; g < grainLevels.size(); ++g) {
        grainLevels[g] = static_cast<qint16>(
            std::lround(static_cast<double>(g) * grainWeight * grainOpacity * 64));
    }
    std::vector<std::size_t> columns(static_cast<std::size_t>(size));
    for (int x = 0; x < size; ++x) {
        columns[static_cast<std::size_t>(x)] =
            static_cast<std::size_t>((2 * x + 1) * grainSize / (2 * size)) * 4;
    }
    for (int y = 0; y < size; ++y) {
        qint16* line = lanes_.data() + start_ + stride() * static_cast<std::size_t>(y);
        const DitherRow thresholds = ditherRow(y);
        const quint8* noise =
            grain().data() +
            static_cast<std::size_t>((2 * y + 1) * grainSize / (2 * size)) * grainSize * 4;
        for (int x = 0; x < size; ++x) {
            const int dither = thresholds[static_cast<std::size_t>(x) % ditherSize];
            const auto value = static_cast<qint16>(
                grainLevels[noise[columns[static_cast<std::size_t>(x)]]] + dither);
            line[x * 4] = line[x * 4 + 1] = line[x * 4 + 2] = value;
            line[x * 4 + 3] = static_cast<qint16>(opaque ? 256 : dither);
        }
        for (int x = 0; x < overhang * 4; ++x) {
            line[size * 4 + x] = line[x % (size * 4)];
        }
    }
}

} // namespace morrowleaf
