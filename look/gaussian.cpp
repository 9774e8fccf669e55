// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "look/gaussian.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>
#include <utility>

namespace morrowleaf {

namespace {

// The largest sigma, in cells, for a direct convolution; above it, box filters are used.
constexpr double directUpTo = 2.5;
// In a plane with fewer cells the direct convolution is cheap anyway.
constexpr std::size_t fewCells = 16384;

// All passes run down the columns, which the compiler can vectorise; rows are
// processed as the columns of the transposed plane.
Plane transposed(const Plane& plane) {
    constexpr int block = 16;
    Plane result(plane.height, plane.width);
    for (int top = 0; top < plane.height; top += block) {
        for (int left = 0; left < plane.width; left += block) {
            const int bottom = std::min(top + block, plane.height);
            const int right = std::min(left + block, plane.width);
            for (int y = top; y < bottom; ++y) {
                const float* from = plane.row(y);
                for (int x = left; x < right; ++x) {
                    result.row(x)[y] = from[x];
                }
            }
        }
    }
    return result;
}

void addRow(std::vector<float>& sum, const Plane& plane, int y, float weight) {
    if (y < 0 || y >= plane.height) {
        return;
    }
    const float* from = plane.row(y);
    float* to = sum.data();
    for (int x = 0; x < plane.width; ++x) {
        to[x] += weight * from[x];
    }
}

Plane convolvedDown(const Plane& plane, const std::vector<float>& kernel, Edges edges) {
    Plane result(plane.width, plane.height);
    const int reach = static_cast<int>(kernel.size() / 2);
    std::vector<float> sum(static_cast<std::size_t>(plane.width));
    for (int y = 0; y < plane.height; ++y) {
        std::ranges::fill(sum, 0.0F);
        for (int i = -reach; i <= reach; ++i) {
            const int from =
                edges == Edges::Extended ? std::clamp(y + i, 0, plane.height - 1) : y + i;
            addRow(sum, plane, from, kernel[static_cast<std::size_t>(i + reach)]);
        }
        std::ranges::copy(sum, result.row(y));
    }
    return result;
}

struct Box {
    int reach;  // whole cells to each side
    float edge; // weight of the next cell at each end
    float weight;
};

Box boxFor(double sigma) {
    const double variance = sigma * sigma / 3;
    const double r = std::floor((std::sqrt(12 * variance + 1) - 1) / 2);
    const double edge =
        (2 * r + 1) * (variance - r * (r + 1) / 3) / (2 * ((r + 1) * (r + 1) - variance));
    return {static_cast<int>(r), static_cast<float>(edge),
            static_cast<float>(1 / (2 * r + 1 + 2 * edge))};
}

Plane boxedDown(const Plane& plane, const Box& box) {
    Plane result(plane.width, plane.height);
    std::vector<float> sum(static_cast<std::size_t>(plane.width));
    for (int y = 0; y < box.reach; ++y) {
        addRow(sum, plane, y, 1);
    }
    const std::vector<float> zeros(sum.size());
    for (int y = 0; y < plane.height; ++y) {
        addRow(sum, plane, y + box.reach, 1);
        const int aboveAt = y - box.reach - 1;
        const int belowAt = y + box.reach + 1;
        const float* above = aboveAt >= 0 ? plane.row(aboveAt) : zeros.data();
        const float* below = belowAt < plane.height ? plane.row(belowAt) : zeros.data();
        float* to = result.row(y);
        for (int x = 0; x < plane.width; ++x) {
            to[x] =
                box.weight * (sum[static_cast<std::size_t>(x)] + box.edge * (above[x] + below[x]));
        }
        addRow(sum, plane, y - box.reach, -1);
    }
    return result;
}

Plane blurredDown(Plane plane, double sigma) {
    if (sigma <= directUpTo || (sigma <= 2 * directUpTo && plane.values.size() < fewCells)) {
        const int reach = std::max(static_cast<int>(std::ceil(3.5 * sigma)), 1);
        return convolvedDown(plane, gaussianKernel(sigma, reach), Edges::Zero);
    }
    const Box box = boxFor(sigma);
    for (int pass = 0; pass < 3; ++pass) {
        plane = boxedDown(plane, box);
    }
    return plane;
}

} // namespace

std::vector<float> gaussianKernel(double sigma, int reach) {
    std::vector<double> weights;
    for (int i = -reach; i <= reach; ++i) {
        weights.push_back(gaussian(i * i, sigma));
    }
    const double sum = std::accumulate(weights.begin(), weights.end(), 0.0);
    std::vector<float> kernel;
    std::ranges::transform(weights, std::back_inserter(kernel),
                           [sum](double weight) { return static_cast<float>(weight / sum); });
    return kernel;
}

void convolve(Plane& plane, const std::vector<float>& kernel, Edges edges) {
    plane = transposed(convolvedDown(plane, kernel, edges));
    plane = transposed(convolvedDown(plane, kernel, edges));
}

void gaussianBlur(Plane& plane, double sigma) {
    if (!(sigma > 0) || plane.values.empty()) {
        return;
    }
    plane = transposed(blurredDown(std::move(plane), sigma));
    plane = transposed(blurredDown(std::move(plane), sigma));
}

} // namespace morrowleaf
