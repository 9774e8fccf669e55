// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "look/gaussian.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>

using namespace morrowleaf;

namespace {

TEST(GaussianKernel, IsSymmetricAndSumsToOne) {
    for (const double sigma : {0.3, 1.0, 3.7}) {
        const std::vector<float> kernel = gaussianKernel(sigma, 12);
        ASSERT_EQ(kernel.size(), 25U);
        EXPECT_NEAR(std::accumulate(kernel.begin(), kernel.end(), 0.0), 1, 1e-6);
        EXPECT_TRUE(std::equal(kernel.begin(), kernel.end(), kernel.rbegin()));
        EXPECT_NEAR(kernel[13] / kernel[12], std::exp(-1 / (2 * sigma * sigma)), 1e-5);
    }
}

TEST(Convolve, RepeatsValuesAtExtendedEdgesAndLosesThemAtZeroEdges) {
    const std::vector<float> kernel = gaussianKernel(2, 6);
    Plane flat(9, 5);
    std::ranges::fill(flat.values, 80.0F);
    Plane lost = flat;
    convolve(flat, kernel, Edges::Extended);
    for (const float value : flat.values) {
        EXPECT_NEAR(value, 80, 1e-3);
    }
    convolve(lost, kernel, Edges::Zero);
    EXPECT_LT(lost.row(0)[0], 40);
    EXPECT_GT(lost.row(2)[4], lost.row(0)[4]);
}

TEST(GaussianBlur, KeepsTheSumAndTheVariance) {
    for (const double sigma : {0.6, 0.8, 1.7, 2.5, 2.6, 3.3, 4.99, 9.0, 26.0}) {
        const int size = 2 * static_cast<int>(std::ceil(5 * sigma)) + 5;
        Plane plane(size, size);
        plane.row(size / 2)[size / 2] = 1000;
        gaussianBlur(plane, sigma);
        double sum = 0;
        double moment = 0;
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                sum += plane.row(y)[x];
                moment += plane.row(y)[x] * std::pow(x - size / 2, 2);
            }
        }
        EXPECT_NEAR(sum, 1000, 2) << sigma;
        EXPECT_NEAR(std::sqrt(moment / sum), sigma, 0.05 * sigma + 0.12) << sigma;
    }
}

TEST(GaussianBlur, IgnoresASigmaOfZeroAndAnEmptyPlane) {
    Plane plane(3, 1);
    plane.values = {1, 2, 3};
    gaussianBlur(plane, 0);
    EXPECT_EQ(plane.values, (std::vector<float>{1, 2, 3}));
    Plane empty;
    gaussianBlur(empty, 4);
    EXPECT_TRUE(empty.values.empty());
}

} // namespace
