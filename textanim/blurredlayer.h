// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "look/gaussian.h"

#include <QColor>
#include <QImage>
#include <QRect>

#include <array>
#include <vector>

namespace morrowleaf {

// The channels of a premultiplied 32-bit pixel, from its lowest byte up.
enum class Channel { Blue, Green, Red, Alpha };

// A blurred picture and its position in device pixels. It is stored at a reduced
// resolution where the difference cannot be seen.
class BlurredLayer {
public:
    // The pixels per cell for a standard deviation in pixels: a power of two.
    static int cellSize(double sigma);
    // The pixels that a blur of `sigma` adds at each side.
    static int halo(double sigma);

    // `picture` is premultiplied; each of its pixels covers `cell` device pixels
    // in each direction, and its top left corner is the device pixel `origin`.
    // `sigma` is in device pixels.
    BlurredLayer(const QImage& picture, QPoint origin, int cell, double sigma,
                 const std::vector<Channel>& channels);

    // For a single channel that has been reduced already.
    BlurredLayer(const Plane& reduced, QPoint origin, int cell, double sigma);

    QRect rect() const { return rect_; } // device pixels; the layer is 0 outside it

    // Writes the values (0...255) of a channel in the device's row `y` to `out`,
    // over the whole width of rect().
    void row(std::size_t channel, int y, std::vector<float>& out) const;

    // Replaces all pixels of `to`, whose top left corner is the device pixel
    // `origin`, by the layer at an opacity of 0...1. A layer with a single
    // channel is painted in `color`, one with four in its own colours.
    void paint(const QColor& color, double opacity, QImage& to, QPoint origin) const;

private:
    int cell_ = 1;
    QRect rect_;
    std::vector<Plane> planes_;
};

// The alpha (0...255) of a picture, reduced to cells of `cell` × `cell` pixels.
// Each cell is the mean of its pixels; pixels beyond the picture count as 0.
Plane reducedAlpha(const QImage& premultiplied, int cell);

} // namespace morrowleaf
