// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>

namespace morrowleaf {

// A point in unit coordinates: (0, 0) is the top left, (1, 1) the bottom right.
struct MeshPoint {
    float x = 0;
    float y = 0;

    bool operator==(const MeshPoint&) const = default;
};
// The three-by-three mesh of the backdrop, row by row.
using MeshPoints = std::array<MeshPoint, 9>;

// The points of the mesh at phase `t`: seconds since 2001 by the wall clock
// times the speed of the animation, of the order of 1e8. `amplitude` is the
// swing of the inner points as a share of the backdrop's size.
MeshPoints meshDrift(double t, double amplitude = 0.16);

// The weights of a spline's three knots at `u`, 0...2, and their derivatives.
struct KnotWeights {
    std::array<double, 3> value;
    std::array<double, 3> slope;
};
KnotWeights knotWeights(double u);

// The surface x(u, v), y(u, v) through the nine points and its derivatives; u
// and v are 0...2.
struct SurfacePoint {
    double x = 0, y = 0;
    double xByU = 0, xByV = 0;
    double yByU = 0, yByV = 0;

    double determinant() const { return xByU * yByV - xByV * yByU; }
};
SurfacePoint surfaceAt(const MeshPoints& points, double u, double v);

// The surface counts as folded below this; a mesh at rest has 0.25 everywhere.
inline constexpr double leastDeterminant = 0.03;

// The lowest determinant of the surface, found by probing it.
double lowestDeterminant(const MeshPoints& points);

// The points themselves unless the surface through them folds over itself, as
// the widest swings do for a few seconds; then the points drawn back towards
// their resting places, just far enough.
MeshPoints unfolded(const MeshPoints& points);

} // namespace morrowleaf
