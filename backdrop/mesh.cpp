// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/mesh.h"

#include "backdrop/catmullrom.h"

#include <algorithm>
#include <cmath>

namespace morrowleaf {

namespace {

constexpr int probes = 21; // in each direction

MeshPoints scaledTowardsRest(const MeshPoints& points, float swing) {
    MeshPoints drawn = points;
    for (std::size_t i = 0; i < drawn.size(); ++i) {
        const float restX = 0.5F * static_cast<float>(i % 3);
        const std::size_t row = i / 3;
        const float restY = 0.5F * static_cast<float>(row);
        drawn[i].x = restX + (points[i].x - restX) * swing;
        drawn[i].y = restY + (points[i].y - restY) * swing;
    }
    return drawn;
}

// The sine needs double precision at phases around 1e8; a position on the mesh does not.
float swing(double phase, double amplitude) {
    return 0.5F + static_cast<float>(std::sin(phase) * amplitude);
}

} // namespace

KnotWeights knotWeights(double u) {
    const ThreeKnots<double> value = threeKnotValues(u);
    const ThreeKnots<double> slope = threeKnotSlopes(u);
    return {{value.first, value.middle, value.last}, {slope.first, slope.middle, slope.last}};
}

SurfacePoint surfaceAt(const MeshPoints& points, double u, double v) {
    const KnotWeights across = knotWeights(u);
    const KnotWeights down = knotWeights(v);
    SurfacePoint at;
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            const MeshPoint& p = points[row * 3 + column];
            at.x += across.value[column] * down.value[row] * double(p.x);
            at.y += across.value[column] * down.value[row] * double(p.y);
            at.xByU += across.slope[column] * down.value[row] * double(p.x);
            at.yByU += across.slope[column] * down.value[row] * double(p.y);
            at.xByV += across.value[column] * down.slope[row] * double(p.x);
            at.yByV += across.value[column] * down.slope[row] * double(p.y);
        }
    }
    return at;
}

double lowestDeterminant(const MeshPoints& points) {
    static const std::array<KnotWeights, probes> weights = [] {
        std::array<KnotWeights, probes> all;
        for (int i = 0; i < probes; ++i) {
            all[static_cast<std::size_t>(i)] = knotWeights(2.0 * i / (probes - 1));
        }
        return all;
    }();
    double lowest = 1;
    for (const KnotWeights& down : weights) {
        // Evaluates the tensor product one direction at a time.
        std::array<double, 3> x{}, y{}, xv{}, yv{};
        for (std::size_t column = 0; column < 3; ++column) {
            for (std::size_t row = 0; row < 3; ++row) {
                const MeshPoint& p = points[row * 3 + column];
                x[column] += down.value[row] * double(p.x);
                y[column] += down.value[row] * double(p.y);
                xv[column] += down.slope[row] * double(p.x);
                yv[column] += down.slope[row] * double(p.y);
            }
        }
        const auto dot = [](const std::array<double, 3>& a, const std::array<double, 3>& b) {
            return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
        };
        for (const KnotWeights& across : weights) {
            lowest = std::min(lowest, dot(across.slope, x) * dot(across.value, yv) -
                                          dot(across.value, xv) * dot(across.slope, y));
        }
    }
    return lowest;
}

MeshPoints unfolded(const MeshPoints& points) {
    if (lowestDeterminant(points) >= leastDeterminant) {
        return points;
    }
    float whole = 0;
    float folding = 1;
    for (int step = 0; step < 14; ++step) {
        const float swing = (whole + folding) / 2;
        (lowestDeterminant(scaledTowardsRest(points, swing)) >= leastDeterminant ? whole
                                                                                 : folding) = swing;
    }
    return scaledTowardsRest(points, whole);
}

MeshPoints meshDrift(double t, double amplitude) {
    return {{
        {0.0F, 0.0F},
        {swing(t + 1.7, amplitude), 0.0F},
        {1.0F, 0.0F},
        {0.0F, swing(0.7 * t + 0.4, amplitude)},
        {swing(1.3 * t + 2.9, amplitude), swing(0.9 * t + 1.1, amplitude)},
        {1.0F, swing(1.1 * t + 1.2, amplitude)},
        {0.0F, 1.0F},
        {swing(0.8 * t + 2.3, amplitude), 1.0F},
        {1.0F, 1.0F},
    }};
}

} // namespace morrowleaf
