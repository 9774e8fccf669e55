// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

#include <vector>

namespace morrowleaf {

// A picture made small by averaging squares of `step` pixels, and blurred; the
// picture's edges continue beyond it.
class BlurredGrid {
public:
    // `picture`: RGB32. `sigma`: of the Gaussian, in pixels of the picture.
    BlurredGrid(const QImage& picture, int step, double sigma);

    // One row of the picture, `y` in its pixels, mixed from the two rows of
    // squares whose middles lie about it: blue, green, red, 0...255, a square.
    void mixRow(double y, std::vector<float>& row) const;

    // Between which squares of such a row a place lies, in pixels.
    struct Place {
        int left = 0;
        int right = 0;
        float share = 0; // of the right one
    };
    Place placeOf(double x) const;

private:
    void shrink(const QImage& picture);
    void blur(double sigma);

    int step_;
    int columns_;
    int rows_;
    std::vector<float> cells_; // three a square
};

} // namespace morrowleaf
