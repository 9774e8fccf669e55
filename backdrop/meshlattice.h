// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/mesh.h"

#include <QColor>

#include <array>
#include <span>
#include <vector>

namespace morrowleaf {

// The colours of a mesh gradient on a regular lattice over its unit square, with
// one ring of nodes beyond each edge for a spline through them. They depend only
// on points and colours, not on an earlier lattice.
class MeshLattice {
public:
    // The surface through the points must not fold, see unfolded().
    void build(const MeshPoints& points, std::span<const QColor, 9> colors);

    // The number of cells; there are more where the mesh is squeezed.
    int columns() const { return columns_; }
    int rows() const { return rows_; }

    // Node 0 of a lattice row (-1...rows + 1) in one plane (0 red, 1 green,
    // 2 blue), 0...1; nodes -1...columns + 1 stand beside it.
    const float* row(int plane, int row) const {
        return nodes_.data() + (plane * (rows_ + 3) + row + 1) * stride_ + 1;
    }

private:
    int columns_ = 0;
    int rows_ = 0;
    int stride_ = 0; // columns + 3, padded to whole vectors
    std::vector<float> nodes_;
};

} // namespace morrowleaf
