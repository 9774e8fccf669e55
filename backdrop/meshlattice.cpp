// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/meshlattice.h"

#include "backdrop/catmullrom.h"
#include "look/processor.h"

#include <algorithm>
#include <cmath>

namespace morrowleaf {

namespace {

constexpr int mostColumns = 128;
constexpr int mostRows = 80;
constexpr int lane = 136; // nodes of the longest row, padded to whole vectors
using Line = std::array<float, lane>;
// From this determinant on, half as many cells in each direction are accurate enough.
constexpr double calmDeterminant = 0.08;

// The range of the parameters, slightly beyond 0...2 for the ring of nodes
// outside the mesh.
constexpr float paramMin = -0.06F;
constexpr float paramMax = 2.06F;
constexpr float safeDeterminant = 0.01F;
constexpr float closeEnough = 2e-6F; // as a fraction of the screen
constexpr int mostSteps = 10;

using Weights = ThreeKnots<float>;

[[gnu::always_inline]] inline float mix(const Weights& w, float a, float b, float c) {
    return w.first * a + w.middle * b + w.last * c;
}

struct Front {
    int columns = 0;
    int length = 0; // nodes, the padding included
    Line u;
    Line v;
};

// One step of Newton's method for a whole row of nodes at the height y.
[[gnu::always_inline]] inline void improveRow(const MeshPoints& p, float y, Front& at,
                                              Line& missed) {
    const int length = at.length;
    const float cell = 1 / static_cast<float>(at.columns);
    for (int i = 0; i < length; ++i) {
        const auto n = static_cast<std::size_t>(i);
        const float x = static_cast<float>(i - 1) * cell;
        const Weights wu = threeKnotValues(at.u[n]);
        const Weights wv = threeKnotValues(at.v[n]);
        const Weights du = threeKnotSlopes(at.u[n]);
        const Weights dv = threeKnotSlopes(at.v[n]);
        // Interpolates along the three rows of points first, then between the rows.
        const float topX = mix(wu, p[0].x, p[1].x, p[2].x);
        const float midX = mix(wu, p[3].x, p[4].x, p[5].x);
        const float lowX = mix(wu, p[6].x, p[7].x, p[8].x);
        const float topY = mix(wu, p[0].y, p[1].y, p[2].y);
        const float midY = mix(wu, p[3].y, p[4].y, p[5].y);
        const float lowY = mix(wu, p[6].y, p[7].y, p[8].y);
        const float xByU = mix(wv, mix(du, p[0].x, p[1].x, p[2].x), mix(du, p[3].x, p[4].x, p[5].x),
                               mix(du, p[6].x, p[7].x, p[8].x));
        const float yByU = mix(wv, mix(du, p[0].y, p[1].y, p[2].y), mix(du, p[3].y, p[4].y, p[5].y),
                               mix(du, p[6].y, p[7].y, p[8].y));
        const float xByV = mix(dv, topX, midX, lowX);
        const float yByV = mix(dv, topY, midY, lowY);
        const float ex = x - mix(wv, topX, midX, lowX);
        const float ey = y - mix(wv, topY, midY, lowY);
        const float area = xByU * yByV - xByV * yByU;
        const float determinant = area < safeDeterminant ? safeDeterminant : area;
        const float u = at.u[n] + (ex * yByV - ey * xByV) / determinant;
        const float v = at.v[n] + (ey * xByU - ex * yByU) / determinant;
        at.u[n] = u < paramMin ? paramMin : u > paramMax ? paramMax : u;
        at.v[n] = v < paramMin ? paramMin : v > paramMax ? paramMax : v;
        missed[n] = std::abs(ex) + std::abs(ey);
    }
}

using Knots = std::array<float, 9>;

[[gnu::always_inline]] inline void colourRow(const Front& at, const Knots& knots, float* out) {
    const int length = at.length;
    for (int i = 0; i < length; ++i) {
        const auto n = static_cast<std::size_t>(i);
        const Weights wu = threeKnotValues(at.u[n]);
        const Weights wv = threeKnotValues(at.v[n]);
        const float value =
            mix(wv, mix(wu, knots[0], knots[1], knots[2]), mix(wu, knots[3], knots[4], knots[5]),
                mix(wu, knots[6], knots[7], knots[8]));
        out[i] = value < 0 ? 0 : value > 1 ? 1 : value;
    }
}

// The two functions above, compiled for the baseline processor or for AVX2.
struct RowSteps {
    void (*improve)(const MeshPoints& p, float y, Front& at, Line& missed);
    void (*colour)(const Front& at, const Knots& knots, float* out);
};

void improvePlain(const MeshPoints& p, float y, Front& at, Line& missed) {
    improveRow(p, y, at, missed);
}

void colourPlain(const Front& at, const Knots& knots, float* out) {
    colourRow(at, knots, out);
}

#if defined(__x86_64__)
[[gnu::target("avx2")]] void improveWide(const MeshPoints& p, float y, Front& at, Line& missed) {
    improveRow(p, y, at, missed);
}

[[gnu::target("avx2")]] void colourWide(const Front& at, const Knots& knots, float* out) {
    colourRow(at, knots, out);
}

RowSteps rowSteps() {
    return hasAvx2() ? RowSteps{improveWide, colourWide} : RowSteps{improvePlain, colourPlain};
}
#else
RowSteps rowSteps() {
    return {improvePlain, colourPlain};
}
#endif

bool settled(const Line& missed, int columns) {
    // Ignores the ring, whose nodes may be out of reach of the parameters.
    return std::all_of(missed.begin() + 1, missed.begin() + columns + 2,
                       [](float miss) { return miss < closeEnough; });
}

} // namespace

void MeshLattice::build(const MeshPoints& points, std::span<const QColor, 9> colors) {
    const int finer = lowestDeterminant(points) < calmDeterminant ? 1 : 2;
    columns_ = mostColumns / finer;
    rows_ = mostRows / finer;
    stride_ = (columns_ + 3 + 7) / 8 * 8;
    std::array<Knots, 3> knots;
    for (std::size_t i = 0; i < 9; ++i) {
        knots[0][i] = colors[i].redF();
        knots[1][i] = colors[i].greenF();
        knots[2][i] = colors[i].blueF();
    }
    nodes_.resize(static_cast<std::size_t>(3 * (rows_ + 3) * stride_));

    const RowSteps steps = rowSteps();
    // Solves row by row; each starts from the extrapolation of the two rows above it.
    Front at;
    at.columns = columns_;
    at.length = stride_;
    Front above;
    Line missed;
    for (int i = 0; i < stride_; ++i) {
        const auto n = static_cast<std::size_t>(i);
        at.u[n] =
            std::min(2.0F * static_cast<float>(i - 1) / static_cast<float>(columns_), paramMax);
        at.v[n] = -2.0F / static_cast<float>(rows_);
        missed[n] = 0;
    }
    above = at;
    for (int row = -1; row <= rows_ + 1; ++row) {
        if (row > -1) {
            for (std::size_t n = 0; n < static_cast<std::size_t>(stride_); ++n) {
                const float u = 2 * at.u[n] - above.u[n];
                const float v = 2 * at.v[n] - above.v[n];
                above.u[n] = at.u[n];
                above.v[n] = at.v[n];
                at.u[n] = u < paramMin ? paramMin : u > paramMax ? paramMax : u;
                at.v[n] = v < paramMin ? paramMin : v > paramMax ? paramMax : v;
            }
        }
        const float y = static_cast<float>(row) / static_cast<float>(rows_);
        for (int step = 0; step < mostSteps; ++step) {
            steps.improve(points, y, at, missed);
            if (settled(missed, columns_)) {
                break;
            }
        }
        for (int plane = 0; plane < 3; ++plane) {
            steps.colour(at, knots[static_cast<std::size_t>(plane)],
                         nodes_.data() + (plane * (rows_ + 3) + row + 1) * stride_);
        }
    }
}

} // namespace morrowleaf
