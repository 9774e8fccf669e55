// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "look/animationkinds.h"
#include "look/palettes.h"

#include <QImage>

#include <memory>

namespace morrowleaf {

struct Glass; // glass.h

// What lies behind the window, as far as the desktop lets us know.
struct Behind {
    enum class Kind {
        Nothing,  // cannot be seen through: the ground is drawn opaque
        Plain,    // seen through the window's alpha, unblurred
        LiveBlur, // the same, blurred by the compositor
        Captured, // `picture` holds it, and the window is opaque
    };
    Kind kind = Kind::Nothing;
    QImage picture; // device pixels of the whole window, for Captured
    // For Captured: the picture under glass, by makeGlass() in a worker. Until
    // it is there the picture shows unblurred under the tint.
    std::shared_ptr<const Glass> glass;
    double glassOpacity = 1; // 0...1 while the glass fades in over the sharp picture
};

// Everything behind the text, as a value. Its picture depends on this, the
// size and the wall clock alone.
struct BackdropState {
    Palette palette;
    bool animated = true;
    bool grainOn = true;
    double vignette = 0.55;
    double transparency = 0;
    bool liquidGlass = true;
    ScreenAnim screenAnim = ScreenAnim::Drift;
    bool hasPhoto = false;   // a photo is chosen and readable
    QImage photo;            // its pixels at the size shown; null while they are decoded
    double photoOpacity = 1; // 0...1 while it fades in over the photo palette's colour
    Behind behind;
};

// The glass material can be had: the pixels behind are at hand.
inline bool glassAvailable(const Behind& behind) {
    return behind.kind == Behind::Kind::Captured;
}

} // namespace morrowleaf
