#pragma once

#include <QImage>

#include <array>
#include <vector>

namespace morrowleaf {

// A picture made small by averaging squares of `step` pixels, and blurred; the
// picture's edges continue beyond it.
class BlurredGrid {
public:
    // `picture`: RGB32. `sigma`: of the Gaussian, in pixels of the picture.
    BlurredGrid(const QImage& picture, int step, double sigma);

    // Blue, green, red, 0...255, between the squares' middles, at a place in
    // pixels of the picture.
    std::array<float, 3> at(double x, double y) const;

private:
    void shrink(const QImage& picture);
    void blur(double sigma);

    int step_;
    int columns_;
    int rows_;
    std::vector<float> cells_; // three a square
};

} // namespace morrowleaf
