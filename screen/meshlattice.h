#pragma once

#include "screen/meshdrift.h"

#include <QColor>

#include <array>
#include <span>
#include <vector>

namespace morrowleaf {

// The colours of a mesh gradient on a regular lattice over its unit square,
// with one ring of nodes beyond each edge for a spline through them. Depends
// on points and colours alone, not on an earlier picture.
class MeshLattice {
public:
    static constexpr int columns = 128; // cells
    static constexpr int rows = 80;

    // The points must not fold, see unfolded().
    void build(const MeshPoints& points, std::span<const QColor, 9> colors);

    // Node 0 of a lattice row (-1...rows + 1) in one plane (0 red, 1 green,
    // 2 blue), 0...1; nodes -1...columns + 1 stand beside it.
    const float* row(int plane, int row) const {
        return nodes_.data() + plane * planeSize + (row + 1) * stride + 1;
    }

private:
    static constexpr int stride = 136; // columns + 3, padded to whole vectors
    static constexpr int planeSize = stride * (rows + 3);
    std::vector<float> nodes_;
};

} // namespace morrowleaf
