// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "look/animationkinds.h"
#include "look/palettes.h"

#include <QImage>

#include <algorithm>
#include <memory>

namespace morrowleaf {

struct Glass; // glass.h

// What shows behind the window, which depends on the desktop.
struct DesktopView {
    enum class Kind {
        Nothing,  // the window cannot be transparent: the ground is drawn opaque
        Plain,    // the desktop shows through the window's alpha, unblurred
        LiveBlur, // the same, blurred by the compositor
        Captured, // `picture` holds the desktop, and the window is opaque
        // The system draws what systemBackdropFor() says:
        SystemBlur,
        SystemGlass,
    };
    Kind kind = Kind::Nothing;
    QImage picture; // for Captured: device pixels of the whole window
    // For Captured: the picture under glass, made by makeGlass() on a worker
    // thread. While it is null, the picture shows unblurred under the tint.
    std::shared_ptr<const Glass> glass;
    double glassOpacity = 1; // 0...1 while the glass fades in over the sharp picture
};

// The state of everything behind the text. The pixels depend only on this value,
// the size, the device pixel ratio and the wall clock.
struct BackdropState {
    Palette palette;
    bool animated = true; // false pauses the mesh
    bool grainOn = true;
    double vignette = 0.55;  // strength as stored; clamped to 0...1 when it is used
    double transparency = 0; // as stored; clamped to 0...1 when it is used
    bool liquidGlass = true;
    ScreenAnim screenAnim = ScreenAnim::Drift;
    bool hasPhoto = false;   // a photo is chosen and readable
    QImage photo;            // its pixels at the size shown; null while they are decoded
    double photoOpacity = 1; // 0...1 while it fades in over the photo palette's colour
    DesktopView desktop;
};

// Whether glass can be drawn: by us over a picture of the desktop, or by the system.
inline bool glassAvailable(const DesktopView& desktop) {
    return desktop.kind == DesktopView::Kind::Captured ||
           desktop.kind == DesktopView::Kind::SystemGlass;
}

// Whether the system draws everything behind the ground.
inline bool isDrawnBySystem(const DesktopView& desktop) {
    return desktop.kind == DesktopView::Kind::SystemBlur ||
           desktop.kind == DesktopView::Kind::SystemGlass;
}

// `value` clamped to 0...1; NaN gives 0.
inline double clampToUnit(double value) {
    return value > 0 ? std::min(value, 1.0) : 0;
}

} // namespace morrowleaf
