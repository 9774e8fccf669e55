// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/graintile.h"
#include "backdrop/nodegrid.h"

#include <QImage>
#include <QRect>

#include <array>

namespace morrowleaf {

// A picture of the frame's size that shines through with a constant weight.
struct KernelPicture {
    const QImage* image = nullptr; // Format_RGB32 or ARGB32_Premultiplied
    double weight = 0;             // 0...1
};

// What the pixels of a frame are computed from: the interpolated nodes, plus the
// weighted pictures, plus the tile; or, with `multiply`, the first picture times
// the nodes (a lane of 16384 is 1) plus the tile.
struct KernelInput {
    const NodeGrid* nodes = nullptr;
    const GrainTile* tile = nullptr;
    std::array<KernelPicture, 3> pictures{};
    int pictureCount = 0;
    bool multiply = false;
};

// The paths give identical pixels. The fastest one that the processor has is
// chosen at run time.
enum class KernelPath { Portable, Avx2 };
bool kernelPathAvailable(KernelPath path);
KernelPath fastestKernelPath();

// Writes the pixels of `clip` (device pixels), which must lie within `target`, a
// 32-bit image of the size that the nodes were made for.
void runKernel(QImage& target, const QRect& clip, const KernelInput& input,
               KernelPath path = fastestKernelPath());

} // namespace morrowleaf
