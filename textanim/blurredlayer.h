// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "textanim/gaussian.h"

#include <QColor>
#include <QImage>
#include <QRect>

#include <array>
#include <vector>

namespace morrowleaf {

// One channel of a premultiplied picture, counted from its lowest byte up.
enum class Channel { Blue, Green, Red, Alpha };

// A picture out of focus, kept at a reduced resolution where the eye cannot
// tell. It knows its place in device pixels.
class BlurredLayer {
public:
    // Pixels to a cell at that standard deviation (in pixels): a power of two.
    static int cellSize(double sigma);
    // What a blur of `sigma` adds at each side, in pixels.
    static int halo(double sigma);

    // `picture` is premultiplied, has `cell` pixels to each of its own and its
    // top left corner at the device pixel `origin`.
    BlurredLayer(const QImage& picture, QPoint origin, int cell, double sigma,
                 const std::vector<Channel>& channels);

    // One channel only, already reduced.
    BlurredLayer(const Plane& reduced, QPoint origin, int cell, double sigma);

    QRect rect() const { return rect_; } // device pixels; nothing is outside it

    // Gives a channel (0...255) over the whole width of `rect` in one of its
    // rows, counted from the top of the device.
    void row(std::size_t channel, int y, std::vector<float>& out) const;

    // Sets every pixel of `to`, whose top left corner is the device pixel
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

// Threshold for turning 0...255 into a byte at a device pixel, so that slow
// slopes show no steps.
float ditherAt(int x, int y);

} // namespace morrowleaf
