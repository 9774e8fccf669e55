// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/mesh.h"

#include <QColor>
#include <QRgb>
#include <QSize>

#include <array>
#include <vector>

namespace morrowleaf {

// A mesh over a constant premultiplied colour, computed pixel by pixel in double
// precision without tables: the reference for the kernel.
struct Reference {
    MeshPoints points{};
    std::array<QColor, 9> colors;
    double scale = 1;
    double vignette = 0;
    bool grainOn = true;
    double opacity = 1;
    std::array<double, 4> base{}; // B, G, R, A, added
    QSize size;
    double ratio = 1;

    std::vector<QRgb> draw() const;
};

} // namespace morrowleaf
