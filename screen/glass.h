#pragma once

#include "screen/nodegrid.h"

#include <QImage>
#include <QRect>

#include <memory>

namespace morrowleaf {

inline constexpr double frostSigma = 30; // points: the frosting's standard deviation
inline constexpr double frostSaturation = 1.2;
inline constexpr double clearSigma = 3;  // points
inline constexpr double clearFrom = 0.6; // a transparency above it takes the clear glass

enum class GlassStyle { Regular, Clear };

// What the picture of a desktop becomes under glass; never changes once made.
struct Glass {
    QSize size; // device pixels
    NodeGrid frosted;
    QImage clear; // lightly blurred, bent towards the edges as by a bevel
};

// Takes some tens of milliseconds on a large screen, and may run in any
// thread. Nothing for a null picture.
std::shared_ptr<const Glass> makeGlass(const QImage& picture, double devicePixelRatio);

// Light on the glass's edges, brightest from the top left, added to `target`
// with `strength` 0...1 within `clip` (device pixels).
void addRim(QImage& target, const QRect& clip, GlassStyle style, double strength);

} // namespace morrowleaf
