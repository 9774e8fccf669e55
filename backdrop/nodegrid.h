// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/meshlattice.h"

#include <QSize>

#include <array>
#include <vector>

namespace morrowleaf {

// One full level of a lane, in 64ths of an 8-bit level.
inline constexpr int fullLane = 255 * 64;

// A picture that changes slowly from place to place, stored at the corners of
// square cells of `cell` device pixels: premultiplied, in 64ths of a level, with
// four lanes (B, G, R, A) for each node. The last column and row are on or beyond
// the edge.
struct NodeGrid {
    int cell = 8; // 1, 4, or a multiple of 8; at 1 the nodes lie in the pixels' centres
    int columns = 0;
    int rows = 0;
    std::vector<qint16> lanes;

    // The size of a cell for a picture of `size` device pixels: about eight points,
    // and fewer where the whole mesh has only a few pixels.
    static int cellFor(const QSize& size, double devicePixelRatio);
    void resize(const QSize& size, double devicePixelRatio);

    // The position of node `index` in a row or column, in device pixels.
    double place(int index) const { return index * cell + (cell == 1 ? 0.5 : 0.0); }

    qint16* row(int y) { return lanes.data() + static_cast<std::size_t>(y * columns) * 4; }
    const qint16* row(int y) const {
        return lanes.data() + static_cast<std::size_t>(y * columns) * 4;
    }
};

// How the mesh becomes nodes:
// mesh * factor * (1 - vignette) + base + under * underWeight.
struct Shading {
    double factor = 1;               // 0...1
    double alpha = 1;                // of the alpha lane; the vignette does not change it
    double vignette = 0;             // strength, 0...1
    std::array<double, 4> base{};    // B, G, R, A, 0...1
    const NodeGrid* under = nullptr; // of the same size
    double underWeight = 0;

    bool operator==(const Shading&) const = default;
};

// Draws the mesh, scaled about the centre, into `nodes`, which must have been
// resized. Where the scaled mesh does not reach, its edge colours continue.
void shadeNodes(NodeGrid& nodes, const QSize& size, double devicePixelRatio,
                const MeshLattice& mesh, double scale, const Shading& shading);

} // namespace morrowleaf
