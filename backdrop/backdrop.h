#pragma once

#include "look/animationkinds.h"
#include "look/palettes.h"

#include <QImage>
#include <QRect>
#include <QSizeF>

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

// The glass material can be had: the pixels behind are at hand.
bool glassAvailable(const Behind& behind);

// Frames of a moving backdrop are at least this far apart.
inline constexpr double backdropInterval = 1.0 / 30.0; // seconds

} // namespace morrowleaf
