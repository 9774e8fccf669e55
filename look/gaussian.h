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

// exp(-d² / 2σ²): the Gaussian at the distance d from its centre, where it is 1.
inline double gaussian(double squaredDistance, double sigma) {
    return std::exp(-squaredDistance / (2 * sigma * sigma));
}

// The weights of the cells -reach...reach, with a sum of 1.
std::vector<float> gaussianKernel(double sigma, int reach);

// What lies beyond the edges of a plane.
enum class Edges {
    Zero,     // nothing: what a filter spreads over an edge is lost
    Extended, // the outermost cells continue
};

// Convolves columns and rows with a kernel of an odd number of weights.
void convolve(Plane& plane, const std::vector<float>& kernel, Edges edges);

// Convolves with a Gaussian of standard deviation `sigma` in cells; a plane is
// zero beyond its edges, so keep three `sigma` around what matters. Up to a
// sigma of 2.5 (5 in a small plane) this is the kernel itself, beyond it three
// box means of fractional width with the same variance, whose cost does not
// grow with `sigma`. A sigma that is not above 0 changes nothing.
void gaussianBlur(Plane& plane, double sigma);

} // namespace morrowleaf
