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

// The points of the mesh at the phase `t` in radians: the seconds since 2001 by the
// wall clock times the speed of the animation, of the order of 1e8. `amplitude` is
// the largest displacement of a coordinate, as a fraction of the backdrop's size.
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

// Below this determinant the surface counts as folded; a mesh at rest has 0.25 everywhere.
inline constexpr double leastDeterminant = 0.03;

// The lowest determinant of the surface at a grid of sampled points, at most 1.
double lowestDeterminant(const MeshPoints& points);

// Returns the points unchanged if the surface through them does not fold over
// itself. Otherwise, as happens for a few seconds in the widest swings, returns
// them moved towards their resting positions, just far enough.
MeshPoints unfolded(const MeshPoints& points);

} // namespace morrowleaf
