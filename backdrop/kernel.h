// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/graintile.h"
#include "backdrop/nodegrid.h"

#include <QImage>
#include <QRect>

#include <array>

namespace morrowleaf {

// A picture of the frame's size that is added with a constant weight.
struct KernelPicture {
    const QImage* image = nullptr; // Format_RGB32 or ARGB32_Premultiplied
    double weight = 0;             // 0...1
};

// The input of a frame. Each pixel is the sum of the interpolated nodes, the
// weighted pictures and the tile. With `multiply` it is the first picture times
// the nodes (in which 16384 stands for 1) plus the tile.
struct KernelInput {
    const NodeGrid* nodes = nullptr;
    const GrainTile* tile = nullptr;
    std::array<KernelPicture, 3> pictures{};
    int pictureCount = 0;
    bool multiply = false;
};

// The implementations of the kernel, which give identical pixels. The fastest one
// that the processor supports is chosen at run time.
enum class KernelPath { Portable, Avx2 };
bool kernelPathAvailable(KernelPath path);
KernelPath fastestKernelPath();

// Writes the pixels of `clip` (device pixels), which must lie within `target`, a
// 32-bit image of the size that the nodes were made for.
void runKernel(QImage& target, const QRect& clip, const KernelInput& input,
               KernelPath path = fastestKernelPath());

} // namespace morrowleaf
