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

// A channel of a premultiplied picture, counted from its lowest byte up.
enum class Channel { Blue, Green, Red, Alpha };

// A picture out of focus, kept at a reduced resolution where the eye cannot
// tell. It knows its place in device pixels.
class BlurredLayer {
public:
    // Pixels to a cell for that standard deviation (in pixels): a power of two.
    static int cellSize(double sigma);
    // The pixels that a blur of `sigma` adds at each side.
    static int halo(double sigma);

    // `picture` is premultiplied; each of its pixels covers `cell` device pixels
    // each way, and its top left corner is the device pixel `origin`. `sigma` is
    // in device pixels.
    BlurredLayer(const QImage& picture, QPoint origin, int cell, double sigma,
                 const std::vector<Channel>& channels);

    // A single channel that is already reduced.
    BlurredLayer(const Plane& reduced, QPoint origin, int cell, double sigma);

    QRect rect() const { return rect_; } // device pixels; the layer is 0 outside it

    // Writes a channel (0...255) over the whole width of `rect` in the device's
    // row `y`.
    void row(std::size_t channel, int y, std::vector<float>& out) const;

    // Replaces every pixel of `to`, whose top left corner is the device pixel
    // `origin`, at an opacity of 0...1. A layer of a single channel is painted in
    // `color`, one of all four in its own colours.
    void paint(const QColor& color, double opacity, QImage& to, QPoint origin) const;

private:
    int cell_ = 1;
    QRect rect_;
    std::vector<Plane> planes_;
};

// The alpha (0...255) of a picture reduced by `cell` pixels to a cell each way,
// each cell the mean of its pixels; what lies beyond the picture is 0.
Plane reducedAlpha(const QImage& premultiplied, int cell);

} // namespace morrowleaf
