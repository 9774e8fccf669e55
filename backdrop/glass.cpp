// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/glass.h"

#include "look/dither.h"
#include "look/gaussian.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace morrowleaf {

namespace {

constexpr double frostSigma = 30; // standard deviation of the blur, points
constexpr double frostSaturation = 1.2;
constexpr double clearSigma = 3; // points

// A picture reduced by averaging squares of `step` × `step` pixels, then blurred.
// The pixels at its edges are repeated beyond them.
class BlurredGrid {
public:
    // `picture`: RGB32. `sigma`: standard deviation in pixels of the picture.
    BlurredGrid(const QImage& picture, int step, double sigma);

    // Writes the blue, green and red (0...255) of every square for the row at `y`, in
    // pixels of the picture, interpolated between the two nearest rows of squares.
    void interpolateRow(double y, std::vector<float>& row) const;

    // The two squares of a row whose centres enclose a position, and their weights.
    struct Place {
        int left = 0;
        int right = 0;
        float share = 0; // weight of the right square, 0...1
    };
    Place placeOf(double x) const;

private:
    void shrink(const QImage& picture);

    int step_;
    int columns_;
    int rows_;
    std::array<Plane, 3> channels_; // blue, green, red
};

BlurredGrid::BlurredGrid(const QImage& picture, int step, double sigma)
    : step_(step)
    , columns_((picture.width() + step - 1) / step)
    , rows_((picture.height() + step - 1) / step) {
    channels_.fill(Plane(columns_, rows_));
    shrink(picture);
    // The averaging has already blurred, with a variance of (step² - 1) / 12.
    const double variance = sigma * sigma - (step * step - 1) / 12.0;
    if (variance > 0) {
        const double inSquares = std::sqrt(variance) / step;
        const std::vector<float> kernel =
            gaussianKernel(inSquares, static_cast<int>(std::ceil(3 * inSquares)));
        for (Plane& channel : channels_) {
            convolve(channel, kernel, Edges::Extended);
        }
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
                channels_[n].row(row)[column] =
                    static_cast<float>(sums[static_cast<std::size_t>(column) * 3 + n]) /
                    static_cast<float>(width * height);
            }
        }
    }
}

void BlurredGrid::interpolateRow(double y, std::vector<float>& row) const {
    const double place = std::clamp(y / step_ - 0.5, 0.0, rows_ - 1.0);
    const int top = static_cast<int>(place);
    const auto share = static_cast<float>(place - top);
    row.resize(static_cast<std::size_t>(columns_) * 3);
    for (std::size_t n = 0; n < 3; ++n) {
        const float* above = channels_[n].row(top);
        const float* below = channels_[n].row(std::min(top + 1, rows_ - 1));
        float* to = row.data() + n;
        for (int column = 0; column < columns_; ++column, to += 3) {
            *to = above[column] + (below[column] - above[column]) * share;
        }
    }
}

BlurredGrid::Place BlurredGrid::placeOf(double x) const {
    const double place = std::clamp(x / step_ - 0.5, 0.0, columns_ - 1.0);
    const int left = static_cast<int>(place);
    return {left, std::min(left + 1, columns_ - 1), static_cast<float>(place - left)};
}

constexpr double bevel = 56; // points from the edge within which clear glass refracts
constexpr double bend = 24;  // the displacement at the edge, points

// The position in the picture, in pixels, that clear glass shows at `at`.
double bent(double at, int length, double ratio) {
    const auto shift = [&](double distance) {
        const double near = std::max(0.0, 1 - distance / (bevel * ratio));
        return near * near * bend * ratio;
    };
    // A picture smaller than two bevels is refracted less.
    const double most = std::min(1.0, length / (2 * bevel * ratio));
    return at + most * (shift(at) - shift(length - at));
}

std::array<float, 3> colourAt(const std::vector<float>& row, const BlurredGrid::Place& place) {
    const float* left = row.data() + std::ptrdiff_t(place.left) * 3;
    const float* right = row.data() + std::ptrdiff_t(place.right) * 3;
    return {left[0] + (right[0] - left[0]) * place.share,
            left[1] + (right[1] - left[1]) * place.share,
            left[2] + (right[2] - left[2]) * place.share};
}

NodeGrid frostedNodes(const QImage& picture, double ratio) {
    NodeGrid nodes;
    nodes.resize(picture.size(), ratio);
    const BlurredGrid grid(picture, NodeGrid::cellFor(picture.size(), ratio), frostSigma * ratio);
    std::vector<float> row;
    for (int j = 0; j < nodes.rows; ++j) {
        grid.interpolateRow(nodes.place(j), row);
        qint16* to = nodes.row(j);
        for (int i = 0; i < nodes.columns; ++i, to += 4) {
            const std::array<float, 3> c = colourAt(row, grid.placeOf(nodes.place(i)));
            const float luma = 0.0722F * c[0] + 0.7152F * c[1] + 0.2126F * c[2];
            for (std::size_t n = 0; n < 3; ++n) {
                const float lifted = luma + (c[n] - luma) * float(frostSaturation);
                to[n] = static_cast<qint16>(std::lround(std::clamp(lifted, 0.0F, 255.0F) * 64));
            }
            to[3] = fullLane;
        }
    }
    return nodes;
}

QImage clearPicture(const QImage& picture, double ratio) {
    const BlurredGrid grid(picture, std::max(1, static_cast<int>(2 * ratio)), clearSigma * ratio);
    QImage clear(picture.size(), QImage::Format_RGB32);
    std::vector<BlurredGrid::Place> columns(static_cast<std::size_t>(clear.width()));
    for (int x = 0; x < clear.width(); ++x) {
        columns[static_cast<std::size_t>(x)] = grid.placeOf(bent(x + 0.5, clear.width(), ratio));
    }
    std::vector<float> row;
    for (int y = 0; y < clear.height(); ++y) {
        grid.interpolateRow(bent(y + 0.5, clear.height(), ratio), row);
        const DitherRow thresholds = ditherRow(y);
        auto* line = reinterpret_cast<QRgb*>(clear.scanLine(y));
        for (int x = 0; x < clear.width(); ++x) {
            const std::array<float, 3> c = colourAt(row, columns[static_cast<std::size_t>(x)]);
            const float dither =
                static_cast<float>(thresholds[static_cast<std::size_t>(x) % ditherSize]) *
                (1.0F / 64);
            // `value` is not negative, and a dither of at most 63/64 cannot raise 255 to 256.
            const auto level = [dither](float value) {
                return static_cast<QRgb>(static_cast<int>(std::min(value, 255.0F) + dither));
            };
            line[x] = 0xFF000000U | level(c[2]) << 16 | level(c[1]) << 8 | level(c[0]);
        }
    }
    return clear;
}

// The light (0...1) at `distance` points from an edge: a fine line plus a glow.
double rimLight(GlassStyle style, double distance) {
    const double fine = std::exp(-distance * distance / 1.8);
    return style == GlassStyle::Clear ? 0.5 * fine + 0.07 * std::exp(-distance / 7)
                                      : 0.32 * fine + 0.05 * std::exp(-distance / 12);
}

constexpr double rimReach = 48;     // points; beyond it the glow is below half a level
constexpr double shadowSide = 0.55; // factor on the light of the right and bottom edges

// The light of two opposite edges for every pixel between them.
std::vector<float> rimAlong(int length, double ratio, GlassStyle style) {
    std::vector<float> light(static_cast<std::size_t>(length));
    for (int i = 0; i < length; ++i) {
        const double lit = rimLight(style, (i + 0.5) / ratio);
        const double shadowed = shadowSide * rimLight(style, (length - i - 0.5) / ratio);
        light[static_cast<std::size_t>(i)] = static_cast<float>(lit + shadowed - lit * shadowed);
    }
    return light;
}

// Adds light to the pixels; no colour exceeds alpha.
void brighten(QRgb* pixels, const quint8* light, int count) {
    for (int i = 0; i < count; ++i) {
        const QRgb pixel = pixels[i];
        const QRgb more = light[i];
        const QRgb alpha = pixel >> 24;
        const QRgb red = std::min(((pixel >> 16) & 0xFF) + more, alpha);
        const QRgb green = std::min(((pixel >> 8) & 0xFF) + more, alpha);
        const QRgb blue = std::min((pixel & 0xFF) + more, alpha);
        pixels[i] = alpha << 24 | red << 16 | green << 8 | blue;
    }
}

} // namespace

double glassOpacity(double transparency) {
    return transparency > leastTransparency ? std::min((1 - transparency) * 4, 1.0) : 0;
}

double glassTint(double transparency) {
    return (1 - transparency) * 0.5 + 0.06;
}

std::shared_ptr<const Glass> makeGlass(const QImage& picture, double devicePixelRatio) {
    if (picture.isNull()) {
        return nullptr;
    }
    const double ratio = devicePixelRatio > 0 ? devicePixelRatio : 1;
    const QImage pixels = picture.convertToFormat(QImage::Format_RGB32);
    auto glass = std::make_shared<Glass>();
    glass->size = pixels.size();
    glass->frosted = frostedNodes(pixels, ratio);
    glass->clear = clearPicture(pixels, ratio);
    return glass;
}

bool GlassRim::hasWholeRow(int y) const {
    return y < reach_ || y >= look_->size.height() - reach_ || look_->size.width() <= 2 * reach_;
}

void GlassRim::light(const Look& look) {
    look_ = look;
    const int width = look.size.width();
    const int height = look.size.height();
    const std::vector<float> across = rimAlong(width, look.ratio, look.style);
    const std::vector<float> down = rimAlong(height, look.ratio, look.style);
    reach_ = static_cast<int>(std::ceil(rimReach * look.ratio));
    const auto most = static_cast<float>(255 * look.strength);
    rows_.clear();
    light_.clear();
    for (int y = 0; y < height; ++y) {
        rows_.push_back(light_.size());
        const float fromDown = down[static_cast<std::size_t>(y)];
        const DitherRow thresholds = ditherRow(y);
        const auto lighten = [&](int first, int last) {
            for (int x = first; x < last; ++x) {
                const float fromAcross = across[static_cast<std::size_t>(x)];
                const float light = fromAcross + fromDown - fromAcross * fromDown;
                const auto dither =
                    static_cast<float>(thresholds[static_cast<std::size_t>(x) % ditherSize]) / 64;
                light_.push_back(static_cast<quint8>(std::min(light * most + dither, 255.0F)));
            }
        };
        if (hasWholeRow(y)) {
            lighten(0, width);
        } else {
            lighten(0, reach_);
            lighten(width - reach_, width);
        }
    }
}

void GlassRim::add(QImage& target, const QRect& clip, GlassStyle style, double strength) {
    const Look look{target.size(), target.devicePixelRatio(), style, strength};
    if (look_ != look) {
        light(look);
    }
    const int width = target.width();
    for (int y = clip.top(); y <= clip.bottom(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(target.scanLine(y));
        const quint8* row = light_.data() + rows_[static_cast<std::size_t>(y)];
        const auto addPart = [&](int first, int last, const quint8* from) {
            const int left = std::max(first, clip.left());
            const int right = std::min(last, clip.left() + clip.width());
            brighten(line + left, from + (left - first), right - left);
        };
        if (hasWholeRow(y)) {
            addPart(0, width, row);
        } else {
            addPart(0, reach_, row);
            addPart(width - reach_, width, row + reach_);
        }
    }
}

} // namespace morrowleaf
