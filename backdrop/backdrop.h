// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/backdropstate.h"

#include <QRect>

#include <memory>

namespace morrowleaf {

// Draws backdrops; keeps between calls what is costly to make. One per screen.
class BackdropPainter {
public:
    BackdropPainter();
    ~BackdropPainter();

    // Draws the part `clip` (device pixels) of the backdrop of `state` into
    // `target`, a premultiplied 32-bit image of the whole window with
    // `devicePixelRatio` set, replacing what was there.
    // `since2001`: seconds since 2001-01-01 00:00:00 UTC.
    void paint(QImage& target, const QRect& clip, const BackdropState& state, double since2001);

    // Whether another instant gives another picture.
    static bool moves(const BackdropState& state);

private:
    struct Private;
    std::unique_ptr<Private> d_;
};

// Frames of a moving backdrop are at least this far apart.
inline constexpr double backdropInterval = 1.0 / 30.0; // seconds

} // namespace morrowleaf
