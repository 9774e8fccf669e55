// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <vector>

namespace morrowleaf {

// A rectangle of numbers, row by row; outside it all is 0.
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

// Convolves with a Gaussian of standard deviation `sigma` in cells; what
// leaves the plane is lost, so keep three `sigma` around what matters. Up to
// 2.5 (5 in a small plane) the kernel itself, beyond that three box means of
// fractional width with the same variance, whose cost does not grow with
// `sigma`.
void gaussianBlur(Plane& plane, double sigma);

} // namespace morrowleaf
