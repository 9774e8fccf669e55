// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/meshdrift.h"

#include <cmath>

namespace morrowleaf {

namespace {

// Narrowed before the half is added: the sine needs the double's precision at
// phases around 1e8, a place on the mesh does not.
float swing(double phase, double amplitude) {
    return 0.5F + static_cast<float>(std::sin(phase) * amplitude);
}

} // namespace

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
