// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/nodegrid.h"

#include "backdrop/catmullrom.h"
#include "backdrop/vignette.h"

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

} // namespace

int NodeGrid::cellFor(const QSize& size, double devicePixelRatio) {
    const int fit = std::min(size.width() / 150, size.height() / 100);
    if (fit < 8) {
        return fit < 4 ? 1 : 4;
    }
    return 8 * std::clamp(static_cast<int>(devicePixelRatio), 1, fit / 8);
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
    std::array<float, 4> base;
    for (std::size_t lane = 0; lane < 4; ++lane) {
        base[lane] = static_cast<float>(shading.base[lane] * fullLane) + 0.5F;
    }
    const auto alpha =
        static_cast<qint16>(std::lround((shading.alpha + shading.base[3]) * fullLane));
    const auto underWeight = static_cast<int>(std::lround(shading.underWeight * 65536));

    std::vector<float> light(columns);
    std::array<std::vector<float>, 3> planes;
    planes.fill(std::vector<float>(columns));
    for (int j = 0; j < nodes.rows; ++j) {
        const double place = nodes.place(j) / size.height();
        const Tap down = tapAt((place - 0.5) / scale + 0.5, mesh.rows(), scale < 1);
        const float dy = (static_cast<float>(nodes.place(j)) - middleY) * pointsPerPixel;
        for (std::size_t i = 0; i < columns; ++i) {
            const float dx =
                (static_cast<float>(static_cast<int>(i) * nodes.cell) + shift - middleX) *
                pointsPerPixel;
            const float beyond = (std::sqrt(dx * dx + dy * dy) - float(vignetteInner)) *
                                 float(1 / (vignetteOuter - vignetteInner));
            light[i] = factor * (1 - strength * (beyond < 0 ? 0 : beyond > 1 ? 1 : beyond));
        }
        for (int plane = 0; plane < 3; ++plane) {
            const float* a = across.data() +
                             static_cast<std::size_t>(plane * meshRows + down.first + 1) * columns;
            const float* b = a + columns;
            const float* c = b + columns;
            const float* d = c + columns;
            const auto lane = static_cast<std::size_t>(2 - plane);
            float* to = planes[lane].data();
            for (std::size_t i = 0; i < columns; ++i) {
                const float value = down.weights[0] * a[i] + down.weights[1] * b[i] +
                                    down.weights[2] * c[i] + down.weights[3] * d[i];
                to[i] = (value < 0 ? 0 : value > 1 ? 1 : value) * light[i] + base[lane];
            }
        }
        qint16* to = nodes.row(j);
        for (std::size_t i = 0; i < columns; ++i) {
            to[i * 4] = static_cast<qint16>(planes[0][i]);
            to[i * 4 + 1] = static_cast<qint16>(planes[1][i]);
            to[i * 4 + 2] = static_cast<qint16>(planes[2][i]);
            to[i * 4 + 3] = alpha;
        }
        if (shading.under != nullptr && underWeight > 0) {
            const qint16* from = shading.under->row(j);
            for (std::size_t i = 0; i < columns * 4; ++i) {
                to[i] = static_cast<qint16>(to[i] + ((from[i] * underWeight) >> 16));
            }
        }
    }
}

} // namespace morrowleaf
