// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cmath>
#include <cstddef>
#include <vector>

namespace morrowleaf {

// A rectangle of values, row by row.
struct Plane {
    int width = 0;
    int height = 0;
    std::vector<float> values;

    Plane() = default;
    Plane(int w, int h)
        : width(w)
        , height(h)
        , values(static_cast<std::size_t>(w) * static_cast<std::size_t>(h)) {}
    float* row(int y) { return values.data() + static_cast<std::ptrdiff_t>(y) * width; }
    const float* row(int y) const { return values.data() + static_cast<std::ptrdiff_t>(y) * width; }
};

// The Gaussian exp(-d² / 2σ²) for the square of the distance d from its centre;
// it is 1 at the centre.
inline double gaussian(double squaredDistance, double sigma) {
    return std::exp(-squaredDistance / (2 * sigma * sigma));
}

// The weights of a Gaussian at the cells -reach...reach, normalised to a sum of
// 1. `sigma` is in cells.
std::vector<float> gaussianKernel(double sigma, int reach);

// The values that a filter reads beyond the edges of a plane.
enum class Edges {
    Zero,     // 0; what a filter spreads over an edge is lost
    Extended, // the value of the nearest cell in the plane
};

// Convolves the columns and then the rows with a kernel of an odd number of weights.
void convolve(Plane& plane, const std::vector<float>& kernel, Edges edges);

// Convolves with a Gaussian of the standard deviation `sigma`, in cells. The
// plane counts as zero beyond its edges, so leave a margin of three `sigma`. Up
// to a sigma of 2.5 (5 in a small plane) this is an exact convolution; above,
// three box filters of fractional width with the same variance, whose cost does
// not grow with `sigma`. Zero, negative values and NaN leave the plane unchanged.
void gaussianBlur(Plane& plane, double sigma);

} // namespace morrowleaf
