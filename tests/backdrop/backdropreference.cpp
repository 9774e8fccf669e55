// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "tests/backdrop/backdropreference.h"

#include "backdrop/mesh.h"
#include "look/dither.h"
#include "look/grain.h"

#include <algorithm>
#include <cmath>

namespace morrowleaf {

namespace {

// Newton's method with halved steps, from the given start to full precision.
bool solve(const MeshPoints& mesh, double x, double y, double& u, double& v) {
    for (int step = 0; step < 60; ++step) {
        const SurfacePoint at = surfaceAt(mesh, u, v);
        const double ex = x - at.x;
        const double ey = y - at.y;
        if (std::hypot(ex, ey) < 1e-11) {
            return true;
        }
        const double determinant = std::max(at.determinant(), 0.01);
        u = std::clamp(u + (ex * at.yByV - ey * at.xByV) / determinant, -0.06, 2.06);
        v = std::clamp(v + (ey * at.xByU - ex * at.yByU) / determinant, -0.06, 2.06);
    }
    return false;
}

} // namespace

std::vector<QRgb> Reference::draw() const {
    const MeshPoints mesh = unfolded(points);
    const int period = std::max(1, static_cast<int>(std::lround(grainSize * ratio)));
    const double noiseOpacity = grainOn ? 0.045 : 0;
    std::vector<QRgb> pixels;
    double rowU = 0;
    double rowV = 0;
    for (int y = 0; y < size.height(); ++y) {
        double u = rowU;
        double v = rowV;
        for (int x = 0; x < size.width(); ++x) {
            const auto place = [this](double at, double whole) {
                return std::clamp((at / whole - 0.5) / scale + 0.5, 0.0, 1.0);
            };
            const double px = place(x + 0.5, size.width());
            const double py = place(y + 0.5, size.height());
            if (!solve(mesh, px, py, u, v)) {
                u = 2 * px;
                v = 2 * py;
                solve(mesh, px, py, u, v);
            }
            if (x == 0) {
                rowU = u;
                rowV = v;
            }
            const KnotWeights across = knotWeights(u);
            const KnotWeights down = knotWeights(v);
            std::array<double, 3> colour{};
            for (std::size_t i = 0; i < 9; ++i) {
                const double weight = across.value[i % 3] * down.value[i / 3];
                colour[0] += weight * double(colors[i].blueF());
                colour[1] += weight * double(colors[i].greenF());
                colour[2] += weight * double(colors[i].redF());
            }
            const double radius =
                std::hypot(x + 0.5 - size.width() / 2.0, y + 0.5 - size.height() / 2.0) / ratio;
            const double dark = vignette * std::clamp((radius - 260) / (1200 - 260), 0.0, 1.0);
            const auto in = [period](int at) {
                return static_cast<int>((at % period + 0.5) * grainSize / period);
            };
            const double noise = grain()[static_cast<std::size_t>(in(y)*grainSize + in(x)) * 4];
            const double dither =
                ditherRow(y % period)[static_cast<std::size_t>(x % period) % ditherSize] / 64.0;
            const auto level = [&](double value, double under) {
                const double over =
                    (std::clamp(value, 0.0, 1.0) * (1 - dark) * (1 - noiseOpacity) * 255 +
                     noise * noiseOpacity) *
                        opacity +
                    under * 255;
                return std::clamp(static_cast<int>(std::floor(over + dither + 1e-9)), 0, 255);
            };
            const int alpha = std::clamp(
                static_cast<int>(std::floor((opacity + base[3]) * 255 + dither + 1e-9)), 0, 255);
            pixels.push_back(qRgba(level(colour[2], base[2]), level(colour[1], base[1]),
                                   level(colour[0], base[0]), alpha));
        }
    }
    return pixels;
}

} // namespace morrowleaf
