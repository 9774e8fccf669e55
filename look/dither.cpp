// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "look/dither.h"

#include "look/gaussian.h"

#include <algorithm>
#include <array>
#include <vector>

namespace morrowleaf {

namespace {

using DitherMask = std::array<quint8, std::size_t{ditherSize} * ditherSize>;

constexpr int side = ditherSize;
constexpr int count = side * side;
constexpr double sigma = 1.9; // pixels

// Dots on a torus, with the blurred density of the dots at every cell.
class Dots {
public:
    Dots() {
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                const int dx = std::min(x, side - x);
                const int dy = std::min(y, side - y);
                spread_[index(x, y)] = static_cast<float>(gaussian(dx * dx + dy * dy, sigma));
            }
        }
    }

    void put(int cell) { change(cell, 1); }
    void take(int cell) { change(cell, -1); }
    bool has(int cell) const { return dots_[static_cast<std::size_t>(cell)]; }

    int tightestCluster() const { return extreme(true); }
    int largestVoid() const { return extreme(false); }

private:
    static std::size_t index(int x, int y) { return static_cast<std::size_t>(y * side + x); }

    void change(int cell, int by) {
        dots_[static_cast<std::size_t>(cell)] = by > 0;
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                const std::size_t from =
                    index((x - cell % side + side) % side, (y - cell / side + side) % side);
                density_[index(x, y)] += static_cast<float>(by) * spread_[from];
            }
        }
    }

    int extreme(bool cluster) const {
        int best = -1;
        for (int cell = 0; cell < count; ++cell) {
            if (has(cell) != cluster) {
                continue;
            }
            const float here = density_[static_cast<std::size_t>(cell)];
            const float there = best < 0 ? here : density_[static_cast<std::size_t>(best)];
            if (best < 0 || (cluster ? here > there : here < there)) {
                best = cell;
            }
        }
        return best;
    }

    std::array<float, count> spread_{};
    std::array<float, count> density_{};
    std::array<bool, count> dots_{};
};

DitherMask build() {
    // Puts dots on a tenth of the cells at random, then spreads them evenly.
    Dots start;
    quint32 random = 0x9E3779B9U;
    int placed = 0;
    while (placed < count / 10) {
        random = random * 1664525U + 1013904223U;
        const int cell = static_cast<int>(random >> 22);
        if (!start.has(cell)) {
            start.put(cell);
            ++placed;
        }
    }
    for (int swap = 0; swap < count; ++swap) {
        const int from = start.tightestCluster();
        start.take(from);
        const int to = start.largestVoid();
        start.put(to);
        if (to == from) {
            break;
        }
    }

    std::array<int, count> rank{};
    Dots fewer = start;
    for (int left = placed - 1; left >= 0; --left) {
        const int cell = fewer.tightestCluster();
        fewer.take(cell);
        rank[static_cast<std::size_t>(cell)] = left;
    }
    Dots more = start;
    for (int next = placed; next < count; ++next) {
        const int cell = more.largestVoid();
        more.put(cell);
        rank[static_cast<std::size_t>(cell)] = next;
    }
    DitherMask mask;
    std::transform(rank.begin(), rank.end(), mask.begin(),
                   [](int value) { return static_cast<quint8>(value * 64 / count); });
    return mask;
}

} // namespace

DitherRow ditherRow(int y) {
    static const DitherMask mask = build();
    const auto row = static_cast<std::size_t>(y) % ditherSize;
    return DitherRow(mask.data() + row * ditherSize, ditherSize);
}

} // namespace morrowleaf
