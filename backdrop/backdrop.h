// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/backdropstate.h"

#include <QRect>

#include <memory>

namespace morrowleaf {

class KeyNodes; // keynodes.h

// Draws backdrops and caches what is costly to compute. Use one painter for each
// screen, always on the same thread.
class BackdropPainter {
public:
    BackdropPainter();
    ~BackdropPainter();

    // Draws the backdrop of `state` into the rectangle `clip` (device pixels) of
    // `target` and replaces all pixels there. `target` is an image of the whole
    // window, Format_ARGB32_Premultiplied or Format_RGB32 (any other is a fatal
    // error), with its device pixel ratio set. `since2001`: seconds since
    // 2001-01-01 00:00:00 UTC by the wall clock.
    void paint(QImage& target, const QRect& clip, const BackdropState& state, double since2001);

    // The nodes of what was painted last; without a scene if it has none.
    KeyNodes& keys();

    // Whether the picture changes with time.
    static bool moves(const BackdropState& state);

private:
    struct Private;
    std::unique_ptr<Private> d_;
};

// Seconds from 1970-01-01 to 2001-01-01, both at 00:00:00 UTC.
inline constexpr double unixToReference = 978307200;

// The shortest time between two frames of a moving backdrop, seconds.
inline constexpr double backdropInterval = 1.0 / 30.0;

// How much each layer contributes to the finished pixel, 0...1, front to back.
struct Layers {
    double ground = 1;
    double tint = 0;  // the palette's centre colour
    double glass = 0; // the picture of the desktop, under glass
    double sharp = 0; // the picture of the desktop as it is
    double rim = 0;   // the light on the edges of the glass
};

// `hasPicture`: there is a picture of the desktop behind the window. `hasGlass`:
// the glass for it has been made. The ground is opaque for Behind::Kind::Nothing,
// for a capture without a picture, and for a transparency of 0.
Layers layersOf(const BackdropState& state, bool hasPicture, bool hasGlass);

} // namespace morrowleaf
