// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/blurredlayer.h"

#include "look/dither.h"
#include "look/processor.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <span>

namespace morrowleaf {

namespace {

// The standard deviation, in cells, that is left to the Gaussian: taking means
// over cells and interpolating between them already blur.
double remainingSigma(double sigma, int cell) {
    const double inCells = sigma / cell;
    const double own = 1 - 1.0 / (cell * cell);
    return std::sqrt(std::max(inCells * inCells - own / 12 - own / 6, 0.0));
}

Plane channelPlane(const QImage& picture, int margin, int shift) {
    Plane plane(picture.width() + 2 * margin, picture.height() + 2 * margin);
    for (int y = 0; y < picture.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        float* to = plane.row(y + margin) + margin;
        for (int x = 0; x < picture.width(); ++x) {
            to[x] = static_cast<float>((from[x] >> shift) & 0xff);
        }
    }
    return plane;
}

// The margin in cells, with one more so that the interpolation ends at 0.
int marginFor(double sigma, int cell) {
    return (BlurredLayer::halo(sigma) + cell - 1) / cell + 1;
}

QRect blurredRect(QPoint origin, QSize cells, int cell, double sigma) {
    const int margin = marginFor(sigma, cell);
    return {origin - QPoint(margin, margin) * cell, (cells + QSize(2 * margin, 2 * margin)) * cell};
}

// Interpolates linearly between the centres of neighbouring cells, for every pixel.
[[gnu::always_inline]] inline void slopesOf(std::span<const float> cells, std::size_t cell,
                                            float* to) {
    const float step = 1.0F / static_cast<float>(cell);
    for (std::size_t i = 0; i + 1 < cells.size(); ++i) {
        const float from = cells[i];
        const float slope = (cells[i + 1] - from) * step;
        for (std::size_t x = 0; x < cell; ++x) {
            *to++ = from + slope * (static_cast<float>(x) + 0.5F);
        }
    }
}

// The same for a cell size that the compiler knows, so that it can vectorise.
template <std::size_t cell>
[[gnu::always_inline]] inline void slopes(std::span<const float> cells, float* to) {
    std::array<float, cell> steps;
    for (std::size_t x = 0; x < cell; ++x) {
        steps[x] = (static_cast<float>(x) + 0.5F) / static_cast<float>(cell);
    }
    for (std::size_t i = 0; i + 1 < cells.size(); ++i) {
        const float from = cells[i];
        const float rise = cells[i + 1] - from;
        for (std::size_t x = 0; x < cell; ++x) {
            to[x] = from + rise * steps[x];
        }
        to += cell;
    }
}

[[gnu::always_inline]] inline void widen(std::span<const float> cells, std::size_t cell,
                                         float* to) {
    switch (cell) {
    case 2:
        return slopes<2>(cells, to);
    case 4:
        return slopes<4>(cells, to);
    case 8:
        return slopes<8>(cells, to);
    case 16:
        return slopes<16>(cells, to);
    default:
        return slopesOf(cells, cell, to);
    }
}

// Writes values as the bytes of one channel, which must be 0 before. Using the
// same thresholds for all channels keeps each colour at or below alpha.
void writeChannel(const float* values, float factor, const std::vector<float>& thresholds,
                  int shift, QRgb* pixels) {
    const auto count = static_cast<int>(thresholds.size());
    const float* threshold = thresholds.data();
    for (int x = 0; x < count; ++x) {
        const float value = std::min(values[x] * factor + threshold[x], 255.0F);
        pixels[x] |= static_cast<QRgb>(static_cast<int>(value)) << shift;
    }
}

[[gnu::always_inline]] inline QRgb byteOf(float value) {
    return static_cast<QRgb>(static_cast<int>(value < 255.0F ? value : 255.0F));
}

// Writes one value for all channels, of which each has a factor: the same as
// writeChannel() does, in a single pass.
[[gnu::always_inline]] inline void writePixels(const float* values,
                                               const std::array<float, 4>& factors,
                                               std::span<const float> thresholds, QRgb* pixels) {
    const auto [blue, green, red, alpha] = factors;
    const float* const threshold = thresholds.data();
    const auto count = static_cast<int>(thresholds.size());
    if (blue <= 0 && green <= 0 && red <= 0) {
        for (int x = 0; x < count; ++x) {
            pixels[x] = byteOf(values[x] * alpha + threshold[x]) << 24;
        }
        return;
    }
    for (int x = 0; x < count; ++x) {
        pixels[x] = byteOf(values[x] * blue + threshold[x]) |
                    byteOf(values[x] * green + threshold[x]) << 8 |
                    byteOf(values[x] * red + threshold[x]) << 16 |
                    byteOf(values[x] * alpha + threshold[x]) << 24;
    }
}

// The two functions above, compiled for the baseline processor or for AVX2.
struct RowSteps {
    void (*widen)(std::span<const float> cells, std::size_t cell, float* to);
    void (*write)(const float* values, const std::array<float, 4>& factors,
                  std::span<const float> thresholds, QRgb* pixels);
};

void widenPlain(std::span<const float> cells, std::size_t cell, float* to) {
    widen(cells, cell, to);
}

void writePlain(const float* values, const std::array<float, 4>& factors,
                std::span<const float> thresholds, QRgb* pixels) {
    writePixels(values, factors, thresholds, pixels);
}

#if defined(__x86_64__)
[[gnu::target("avx2")]] void widenWide(std::span<const float> cells, std::size_t cell, float* to) {
    widen(cells, cell, to);
}

[[gnu::target("avx2")]] void writeWide(const float* values, const std::array<float, 4>& factors,
                                       std::span<const float> thresholds, QRgb* pixels) {
    writePixels(values, factors, thresholds, pixels);
}

RowSteps rowSteps() {
    return hasAvx2() ? RowSteps{widenWide, writeWide} : RowSteps{widenPlain, writePlain};
}
#else
RowSteps rowSteps() {
    return {widenPlain, writePlain};
}
#endif

// The dither thresholds (0...1) of `width` pixels from `left` on in row `y`.
std::vector<float> thresholdsFrom(int left, int y, int width) {
    const DitherRow row = ditherRow(y);
    std::vector<float> thresholds;
    thresholds.reserve(static_cast<std::size_t>(width));
    for (int x = left; x < left + width; ++x) {
        const quint8 threshold = row[static_cast<std::size_t>(x) % ditherSize];
        thresholds.push_back((static_cast<float>(threshold) + 0.5F) / 64);
    }
    return thresholds;
}

} // namespace

int BlurredLayer::cellSize(double sigma) {
    int cell = 1;
    while (sigma / (2 * cell) >= 2.5) {
        cell *= 2;
    }
    return cell;
}

int BlurredLayer::halo(double sigma) {
    return static_cast<int>(std::ceil(3 * sigma));
}

BlurredLayer::BlurredLayer(const QImage& picture, QPoint origin, int cell, double sigma,
                           const std::vector<Channel>& channels)
    : cell_(cell)
    , rect_(blurredRect(origin, picture.size(), cell, sigma)) {
    for (const Channel channel : channels) {
        planes_.push_back(
            channelPlane(picture, marginFor(sigma, cell), 8 * static_cast<int>(channel)));
        gaussianBlur(planes_.back(), remainingSigma(sigma, cell));
    }
}

BlurredLayer::BlurredLayer(const Plane& reduced, QPoint origin, int cell, double sigma)
    : cell_(cell)
    , rect_(blurredRect(origin, {reduced.width, reduced.height}, cell, sigma)) {
    const int margin = marginFor(sigma, cell);
    Plane plane(reduced.width + 2 * margin, reduced.height + 2 * margin);
    for (int y = 0; y < reduced.height; ++y) {
        std::copy_n(reduced.row(y), reduced.width, plane.row(y + margin) + margin);
    }
    gaussianBlur(plane, remainingSigma(sigma, cell));
    planes_.push_back(std::move(plane));
}

void BlurredLayer::row(std::size_t channel, int y, std::vector<float>& out) const {
    const Plane& plane = planes_[channel];
    out.resize(static_cast<std::size_t>(rect_.width()));
    // The values belong to the centres of the cells; between them they are interpolated.
    const double at = (y - rect_.top() + 0.5) / cell_ - 0.5;
    const int upper = static_cast<int>(std::floor(at));
    const auto share = static_cast<float>(at - upper);
    const float* above = plane.row(std::clamp(upper, 0, plane.height - 1));
    const float* below = plane.row(std::clamp(upper + 1, 0, plane.height - 1));
    const auto cells = static_cast<std::size_t>(plane.width);
    if (cell_ == 1) {
        std::copy_n(above, cells, out.data());
        return;
    }
    std::vector<float> mixed(cells);
    for (std::size_t i = 0; i < cells; ++i) {
        mixed[i] = above[i] + (below[i] - above[i]) * share;
    }
    const auto half = static_cast<std::size_t>(cell_ / 2);
    std::fill_n(out.data(), half, mixed.front());
    std::fill_n(out.data() + (out.size() - half), half, mixed.back());
    static const auto widenRow = rowSteps().widen;
    widenRow(mixed, static_cast<std::size_t>(cell_), out.data() + half);
}

void BlurredLayer::paint(const QColor& color, double opacity, QImage& to, QPoint origin) const {
    static const auto writeRow = rowSteps().write;
    const bool colored = planes_.size() > 1;
    const QRect shown = rect_ & QRect(origin, to.size());
    std::array<float, 4> factors{color.blueF(), color.greenF(), color.redF(), 1.0F};
    for (float& factor : factors) {
        factor = static_cast<float>(opacity) * (colored ? 1.0F : factor);
    }
    const auto skipped = static_cast<std::size_t>(shown.left() - rect_.left());
    std::vector<float> values;
    std::array<std::vector<float>, ditherSize> dither; // one row for each row of the pattern
    for (int y = origin.y(); y < origin.y() + to.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(to.scanLine(y - origin.y()));
        if (y < shown.top() || y > shown.bottom()) {
            std::fill_n(line, to.width(), 0U);
            continue;
        }
        std::vector<float>& thresholds = dither[static_cast<std::size_t>(y) % ditherSize];
        if (thresholds.empty()) {
            thresholds = thresholdsFrom(shown.left(), y, shown.width());
        }
        QRgb* pixels = line + (shown.left() - origin.x());
        if (!colored && factors[3] > 0) {
            std::fill(line, pixels, 0U);
            std::fill(pixels + shown.width(), line + to.width(), 0U);
            row(0, y, values);
            writeRow(values.data() + skipped, factors, thresholds, pixels);
            continue;
        }
        std::fill_n(line, to.width(), 0U);
        for (std::size_t i = 0; colored && i < factors.size(); ++i) {
            row(i, y, values);
            if (factors.at(i) > 0) {
                writeChannel(values.data() + skipped, factors.at(i), thresholds,
                             8 * static_cast<int>(i), pixels);
            }
        }
    }
}

Plane reducedAlpha(const QImage& premultiplied, int cell) {
    const int width = premultiplied.width();
    Plane plane((width + cell - 1) / cell, (premultiplied.height() + cell - 1) / cell);
    const float weight = 1.0F / static_cast<float>(cell * cell);
    std::vector<unsigned> sums;
    for (int y = 0; y < plane.height; ++y) {
        sums.assign(static_cast<std::size_t>(plane.width) * static_cast<std::size_t>(cell), 0);
        const int bottom = std::min((y + 1) * cell, premultiplied.height());
        for (int from = y * cell; from < bottom; ++from) {
            const auto* pixels = reinterpret_cast<const QRgb*>(premultiplied.constScanLine(from));
            for (int x = 0; x < width; ++x) {
                sums[static_cast<std::size_t>(x)] += pixels[x] >> 24;
            }
        }
        float* to = plane.row(y);
        for (int x = 0; x < plane.width; ++x) {
            const auto* first = sums.data() + static_cast<std::ptrdiff_t>(x) * cell;
            to[x] = weight * static_cast<float>(std::accumulate(first, first + cell, 0U));
        }
    }
    return plane;
}

} // namespace morrowleaf
