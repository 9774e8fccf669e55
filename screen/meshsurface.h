#pragma once

#include "screen/meshdrift.h"

#include <QColor>

#include <array>
#include <span>
#include <vector>

namespace morrowleaf {

// Weights of the three knots of a Catmull-Rom spline with one-sided end
// tangents at `u`, 0...2, and their derivatives by u. In the first span the
// Hermite form with tangents P1 - P0 and (P2 - P0) / 2; the second mirrors it.
struct KnotWeights {
    std::array<double, 3> value;
    std::array<double, 3> slope;
};
KnotWeights knotWeights(double u);

struct Rgb {
    float r = 0; // 0...1
    float g = 0;
    float b = 0;
};

// The colours of a mesh gradient on a regular lattice over its unit square,
// `columns` by `rows` cells with one ring of nodes beyond each edge.
class MeshLattice {
public:
    static constexpr int columns = 64;
    static constexpr int rows = 40;

    MeshLattice(const MeshPoints& points, std::span<const QColor, 9> colors);

    // Node (column, row), -1...columns + 1 and -1...rows + 1.
    const Rgb& node(int column, int row) const {
        return nodes_[static_cast<std::size_t>((row + 1) * stride + column + 1)];
    }

    // The colour at a point of the unit square, between the nodes by
    // Catmull-Rom; points outside have the colour of the nearest edge point.
    Rgb at(double x, double y) const;

private:
    static constexpr int stride = columns + 3;
    std::vector<Rgb> nodes_;
};

} // namespace morrowleaf
