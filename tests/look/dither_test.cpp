// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "look/dither.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

using namespace morrowleaf;

namespace {

constexpr int side = static_cast<int>(ditherSize);

int thresholdAt(int x, int y) {
    return ditherRow(y)[static_cast<std::size_t>(x) % ditherSize];
}

TEST(Dither, HasEachOfItsThresholdsEquallyOften) {
    std::array<int, 64> counts{};
    for (int y = 0; y < side; ++y) {
        for (const quint8 threshold : ditherRow(y)) {
            ++counts.at(threshold);
        }
    }
    for (const int count : counts) {
        EXPECT_EQ(count, side * side / 64);
    }
}

TEST(Dither, RepeatsInAllDirections) {
    for (const int y : {-33, -1, 0, 5, 31, 32, 1000}) {
        for (const int x : {-40, -1, 0, 7, 31, 64}) {
            EXPECT_EQ(thresholdAt(x, y), thresholdAt(x + side, y));
            EXPECT_EQ(thresholdAt(x, y), thresholdAt(x, y + side));
        }
    }
}

// Random thresholds would differ by 21 on average.
TEST(Dither, SetsNeighboursFarApart) {
    double sum = 0;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            sum += std::abs(thresholdAt(x, y) - thresholdAt(x + 1, y));
            sum += std::abs(thresholdAt(x, y) - thresholdAt(x, y + 1));
        }
    }
    EXPECT_GT(sum / (2 * side * side), 23);
}

} // namespace
