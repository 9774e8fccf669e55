// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/blurredgrid.h"

#include <algorithm>
#include <cmath>

namespace morrowleaf {

BlurredGrid::BlurredGrid(const QImage& picture, int step, double sigma)
    : step_(step)
    , columns_((picture.width() + step - 1) / step)
    , rows_((picture.height() + step - 1) / step)
    , cells_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_) * 3) {
    shrink(picture);
    // Averaging over a square has blurred already.
    const double variance = sigma * sigma - (step * step - 1) / 12.0;
    if (variance > 0) {
        blur(std::sqrt(variance) / step);
    }
}

void BlurredGrid::shrink(const QImage& picture) {
    std::vector<quint32> sums(static_cast<std::size_t>(columns_) * 3);
    for (int row = 0; row < rows_; ++row) {
        std::fill(sums.begin(), sums.end(), 0);
        const int height = std::min(step_, picture.height() - row * step_);
        for (int y = row * step_; y < row * step_ + height; ++y) {
            const uchar* pixel = picture.constScanLine(y);
            for (int column = 0; column < columns_; ++column) {
                quint32* sum = &sums[static_cast<std::size_t>(column) * 3];
                const int width = std::min(step_, picture.width() - column * step_);
                for (int x = 0; x < width; ++x, pixel += 4) {
                    sum[0] += pixel[0];
                    sum[1] += pixel[1];
                    sum[2] += pixel[2];
                }
            }
        }
        for (int column = 0; column < columns_; ++column) {
            const int width = std::min(step_, picture.width() - column * step_);
            for (std::size_t n = 0; n < 3; ++n) {
                cells_[static_cast<std::size_t>(row * columns_ + column) * 3 + n] =
                    static_cast<float>(sums[static_cast<std::size_t>(column) * 3 + n]) /
                    static_cast<float>(width * height);
            }
        }
    }
}

void BlurredGrid::blur(double sigma) {
    const int reach = static_cast<int>(std::ceil(3 * sigma));
    std::vector<float> kernel(static_cast<std::size_t>(2 * reach + 1));
    float whole = 0;
    for (int i = -reach; i <= reach; ++i) {
        const auto weight = static_cast<float>(std::exp(-i * i / (2 * sigma * sigma)));
        kernel[static_cast<std::size_t>(i + reach)] = weight;
        whole += weight;
    }
    for (float& weight : kernel) {
        weight /= whole;
    }

    // Down, whole rows at a time, then across in a row with lengthened ends.
    const auto length = static_cast<std::size_t>(columns_) * 3;
    std::vector<float> down(cells_.size());
    for (int row = 0; row < rows_; ++row) {
        float* to = &down[static_cast<std::size_t>(row) * length];
        for (int i = -reach; i <= reach; ++i) {
            const float weight = kernel[static_cast<std::size_t>(i + reach)];
            const float* from =
                &cells_[static_cast<std::size_t>(std::clamp(row + i, 0, rows_ - 1)) * length];
            for (std::size_t n = 0; n < length; ++n) {
                to[n] += weight * from[n];
            }
        }
    }
    std::vector<float> longer(length + static_cast<std::size_t>(reach) * 6);
    for (int row = 0; row < rows_; ++row) {
        const float* from = &down[static_cast<std::size_t>(row) * length];
        for (int i = -reach; i < columns_ + reach; ++i) {
            std::copy_n(from + std::clamp(i, 0, columns_ - 1) * 3, 3,
                        longer.begin() + std::ptrdiff_t(i + reach) * 3);
        }
        float* to = &cells_[static_cast<std::size_t>(row) * length];
        std::fill_n(to, length, 0.0F);
        for (std::size_t i = 0; i < kernel.size(); ++i) {
            const float weight = kernel[i];
            const float* shifted = longer.data() + i * 3;
            for (std::size_t n = 0; n < length; ++n) {
                to[n] += weight * shifted[n];
            }
        }
    }
}

void BlurredGrid::mixRow(double y, std::vector<float>& row) const {
    const double place = std::clamp(y / step_ - 0.5, 0.0, rows_ - 1.0);
    const int top = static_cast<int>(place);
    const auto share = static_cast<float>(place - top);
    const auto length = static_cast<std::size_t>(columns_) * 3;
    const float* above = &cells_[static_cast<std::size_t>(top) * length];
    const float* below = top + 1 < rows_ ? above + length : above;
    row.resize(length);
    float* to = row.data();
    for (std::size_t n = 0; n < length; ++n) {
        to[n] = above[n] + (below[n] - above[n]) * share;
    }
}

BlurredGrid::Place BlurredGrid::placeOf(double x) const {
    const double place = std::clamp(x / step_ - 0.5, 0.0, columns_ - 1.0);
    const int left = static_cast<int>(place);
    return {left, std::min(left + 1, columns_ - 1), static_cast<float>(place - left)};
}

} // namespace morrowleaf
