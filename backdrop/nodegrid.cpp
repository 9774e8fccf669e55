// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/nodegrid.h"

#include "backdrop/catmullrom.h"
#include "backdrop/vignette.h"
#include "look/processor.h"

#include <algorithm>
#include <cmath>

namespace morrowleaf {

namespace {

// The four lattice nodes around a position, with their Catmull-Rom weights.
struct Tap {
    int first = 0; // index of the first of the four, at least -1
    std::array<float, 4> weights{};
};

Tap tapAt(double place, int cells, bool meshEndsInside) {
    const double inside = std::clamp(place, 0.0, 1.0);
    const double at = inside * cells;
    const int cell = std::min(static_cast<int>(at), cells - 1);
    const auto s = static_cast<float>(at - cell);
    Tap tap{cell - 1, catmullRom(s)};
    // A node beyond the picture is only needed to interpolate pixels inside it:
    // extrapolates with the slope at the edge.
    if (place > inside && !meshEndsInside) {
        const auto beyond = static_cast<float>((place - inside) * cells);
        tap.weights[1] -= 0.5F * beyond;
        tap.weights[3] += 0.5F * beyond;
    }
    return tap;
}

// A row of nodes and what it is computed from.
struct NodeRow {
    std::size_t count = 0;
    const float* across = nullptr; // first of the four rows of the red plane
    std::size_t plane = 0;         // from one plane to the next
    std::array<float, 4> weights{};
    const float* dx = nullptr; // horizontal distances from the middle, points
    float dy = 0;
    float factor = 0;
    float strength = 0;
    std::array<float, 4> base{};
    qint16 alpha = 0;
    float* light = nullptr; // room for `count` values, as are the planes
    std::array<float*, 3> planes{};
    qint16* out = nullptr;
};

// Copies what it needs from `given`, since a store to the nodes might change it.
[[gnu::always_inline]] inline void shadeRow(const NodeRow& given) {
    const NodeRow row = given;
    const std::size_t count = row.count;
    constexpr auto inner = float(vignetteInner);
    constexpr auto perPoint = float(1 / (vignetteOuter - vignetteInner));
    const float* const dx = row.dx;
    const float dy = row.dy;
    const float factor = row.factor;
    const float strength = row.strength;
    float* const light = row.light;
    for (std::size_t i = 0; i < count; ++i) {
        const float beyond = (std::sqrt(dx[i] * dx[i] + dy * dy) - inner) * perPoint;
        light[i] = factor * (1 - strength * (beyond < 0 ? 0 : beyond > 1 ? 1 : beyond));
    }
    const auto [first, second, third, fourth] = row.weights;
    for (std::size_t lane = 0; lane < 3; ++lane) {
        const float* a = row.across + (2 - lane) * row.plane;
        const float* b = a + count;
        const float* c = b + count;
        const float* d = c + count;
        const float base = row.base[lane];
        float* to = row.planes[lane];
        for (std::size_t i = 0; i < count; ++i) {
            const float value = first * a[i] + second * b[i] + third * c[i] + fourth * d[i];
            to[i] = (value < 0 ? 0 : value > 1 ? 1 : value) * light[i] + base;
        }
    }
    const auto [blue, green, red] = row.planes;
    const qint16 alpha = row.alpha;
    qint16* const out = row.out;
    for (std::size_t i = 0; i < count; ++i) {
        out[i * 4] = static_cast<qint16>(blue[i]);
        out[i * 4 + 1] = static_cast<qint16>(green[i]);
        out[i * 4 + 2] = static_cast<qint16>(red[i]);
        out[i * 4 + 3] = alpha;
    }
}

// The same function compiled for the baseline processor and for AVX2.
void shadeRowPlain(const NodeRow& row) {
    shadeRow(row);
}

#if defined(__x86_64__)
[[gnu::target("avx2")]] void shadeRowWide(const NodeRow& row) {
    shadeRow(row);
}

auto rowShader() {
    return hasAvx2() ? shadeRowWide : shadeRowPlain;
}
#else
auto rowShader() {
    return shadeRowPlain;
}
#endif

} // namespace

int NodeGrid::cellFor(const QSize& size, double devicePixelRatio) {
    const int fit = std::min(size.width() / 150, size.height() / 100);
    if (fit < 8) {
        return fit < 4 ? 1 : 4;
    }
    // In a picture of many pixels the mesh is as smooth as in a smaller one scaled up.
    const int wanted = std::max(static_cast<int>(devicePixelRatio), fit / 10);
    return 8 * std::clamp(wanted, 1, fit / 8);
}

void NodeGrid::resize(const QSize& size, double devicePixelRatio) {
    cell = cellFor(size, devicePixelRatio);
    columns = (size.width() + cell - 1) / cell + 1;
    rows = (size.height() + cell - 1) / cell + 1;
    lanes.resize(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows) * 4);
}

void shadeNodes(NodeGrid& nodes, const QSize& size, double devicePixelRatio,
                const MeshLattice& mesh, double scale, const Shading& shading) {
    const auto columns = static_cast<std::size_t>(nodes.columns);
    const int meshRows = mesh.rows() + 3;

    // Horizontally first: interpolates every lattice row at the columns of the nodes.
    std::vector<Tap> taps(columns);
    for (std::size_t i = 0; i < columns; ++i) {
        const double place = nodes.place(static_cast<int>(i)) / size.width();
        taps[i] = tapAt((place - 0.5) / scale + 0.5, mesh.columns(), scale < 1);
    }
    std::vector<float> across(static_cast<std::size_t>(3 * meshRows) * columns);
    for (int plane = 0; plane < 3; ++plane) {
        for (int row = 0; row < meshRows; ++row) {
            const float* from = mesh.row(plane, row - 1);
            float* to = across.data() + static_cast<std::size_t>(plane * meshRows + row) * columns;
            for (std::size_t i = 0; i < columns; ++i) {
                const Tap& tap = taps[i];
                to[i] = tap.weights[0] * from[tap.first] + tap.weights[1] * from[tap.first + 1] +
                        tap.weights[2] * from[tap.first + 2] + tap.weights[3] * from[tap.first + 3];
            }
        }
    }

    const auto factor = static_cast<float>(shading.factor * fullLane);
    const auto strength = static_cast<float>(shading.vignette);
    const auto pointsPerPixel = static_cast<float>(1 / devicePixelRatio);
    const auto middleX = static_cast<float>(size.width()) / 2;
    const auto middleY = static_cast<float>(size.height()) / 2;
    const auto shift = static_cast<float>(nodes.place(0));
    const auto underWeight = static_cast<int>(std::lround(shading.underWeight * 65536));

    std::vector<float> dx(columns);
    for (std::size_t i = 0; i < columns; ++i) {
        dx[i] = (static_cast<float>(static_cast<int>(i) * nodes.cell) + shift - middleX) *
                pointsPerPixel;
    }
    std::vector<float> rooms(4 * columns);
    NodeRow row;
    row.count = columns;
    row.plane = static_cast<std::size_t>(meshRows) * columns;
    row.dx = dx.data();
    row.factor = factor;
    row.strength = strength;
    for (std::size_t lane = 0; lane < 4; ++lane) {
        row.base[lane] = static_cast<float>(shading.base[lane] * fullLane) + 0.5F;
    }
    row.alpha = static_cast<qint16>(std::lround((shading.alpha + shading.base[3]) * fullLane));
    row.light = rooms.data();
    row.planes = {row.light + columns, row.light + 2 * columns, row.light + 3 * columns};
    const auto shade = rowShader();
    for (int j = 0; j < nodes.rows; ++j) {
        const double place = nodes.place(j) / size.height();
        const Tap down = tapAt((place - 0.5) / scale + 0.5, mesh.rows(), scale < 1);
        row.across = across.data() + static_cast<std::size_t>(down.first + 1) * columns;
        row.weights = down.weights;
        row.dy = (static_cast<float>(nodes.place(j)) - middleY) * pointsPerPixel;
        row.out = nodes.row(j);
        shade(row);
        qint16* to = nodes.row(j);
        if (shading.under != nullptr && underWeight > 0) {
            const qint16* from = shading.under->row(j);
            for (std::size_t i = 0; i < columns * 4; ++i) {
                to[i] = static_cast<qint16>(to[i] + ((from[i] * underWeight) >> 16));
            }
        }
    }
}

} // namespace morrowleaf
