// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/mesh.h"

#include <QColor>

#include <array>
#include <span>
#include <vector>

namespace morrowleaf {

// The colours of a mesh gradient on a regular lattice over its unit square. One
// ring of nodes outside the square lets splines be evaluated at its edges. The
// colours depend only on the arguments of build(), not on an earlier lattice.
class MeshLattice {
public:
    // The surface through the points must not fold over itself; see unfolded().
    void build(const MeshPoints& points, std::span<const QColor, 9> colors);

    // The number of cells, which is higher for a strongly deformed mesh.
    int columns() const { return columns_; }
    int rows() const { return rows_; }

    // Points to node 0 of the lattice row `row` (-1...rows() + 1) in a plane (0 red,
    // 1 green, 2 blue); the nodes -1...columns() + 1 are adjacent. Values are 0...1.
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
