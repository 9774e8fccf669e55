// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/meshdrift.h"

#include <array>

namespace morrowleaf {

// Weights of the three knots of a Catmull-Rom spline with one-sided end
// tangents at `u`, 0...2, and their derivatives by u. In the first span the
// Hermite form with tangents P1 - P0 and (P2 - P0) / 2; the second mirrors it.
struct KnotWeights {
    std::array<double, 3> value;
    std::array<double, 3> slope;
};
KnotWeights knotWeights(double u);

// The surface x(u, v), y(u, v) through a mesh's nine points, and its slopes.
struct SurfacePoint {
    double x = 0, y = 0;
    double xByU = 0, xByV = 0;
    double yByU = 0, yByV = 0;

    double determinant() const { return xByU * yByV - xByV * yByU; }
};
SurfacePoint surfaceAt(const MeshPoints& points, double u, double v);

// Below this the surface counts as folding; a mesh at rest has 0.25 everywhere.
inline constexpr double leastDeterminant = 0.03;

// The lowest determinant of the surface, found by probing it.
double lowestDeterminant(const MeshPoints& points);

// The points themselves unless the surface through them folds over itself, as
// the widest swings do for a few seconds; then the same points drawn back
// towards their resting places, just far enough.
MeshPoints unfolded(const MeshPoints& points);

} // namespace morrowleaf
