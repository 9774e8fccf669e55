// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/meshlattice.h"

#include <QSize>

#include <array>
#include <vector>

namespace morrowleaf {

// The value of a lane for the level 255, in 64ths of a level.
inline constexpr int fullLane = 255 * 64;

// A picture without fine detail, stored at the corners of square cells of `cell`
// device pixels: premultiplied, in 64ths of a level, with four lanes (B, G, R, A)
// for each node. The last column and row are on or beyond the edge.
struct NodeGrid {
    int cell = 8; // 1, 4, or a multiple of 8; if 1, the nodes are at the centres of the pixels
    int columns = 0;
    int rows = 0;
    std::vector<qint16> lanes;

    // The size of a cell for a picture of `size` device pixels: about eight points,
    // less in small pictures and more in very large ones.
    static int cellFor(const QSize& size, double devicePixelRatio);
    // Allocates the nodes for a picture of `size` device pixels.
    void resize(const QSize& size, double devicePixelRatio);

    // The position of node `index` in a row or column, in device pixels.
    double place(int index) const { return index * cell + (cell == 1 ? 0.5 : 0.0); }

    qint16* row(int y) { return lanes.data() + static_cast<std::size_t>(y * columns) * 4; }
    const qint16* row(int y) const {
        return lanes.data() + static_cast<std::size_t>(y * columns) * 4;
    }
};

// How shadeNodes() computes a node:
// mesh * factor * (1 - vignette) + base + under * underWeight.
struct Shading {
    double factor = 1;               // 0...1
    double alpha = 1;                // of the alpha lane; the vignette does not change it
    double vignette = 0;             // strength, 0...1
    std::array<double, 4> base{};    // B, G, R, A, 0...1
    const NodeGrid* under = nullptr; // a grid of the same size, or null
    double underWeight = 0;

    bool operator==(const Shading&) const = default;
};

// Writes the colours of the mesh, scaled by `scale` about the centre, into
// `nodes`, which must have been resized for `size` (device pixels). Beyond the
// scaled mesh its edge colours continue.
void shadeNodes(NodeGrid& nodes, const QSize& size, double devicePixelRatio,
                const MeshLattice& mesh, double scale, const Shading& shading);

} // namespace morrowleaf
