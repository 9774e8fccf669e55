// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/nodegrid.h"

#include <QImage>
#include <QRect>

#include <memory>
#include <optional>
#include <vector>

namespace morrowleaf {

// At and below this transparency (0...1) no glass is drawn.
inline constexpr double leastTransparency = 0.01;
// The opacity of the glass for a transparency t of 0...1: min(4 (1 - t), 1), and
// 0 up to leastTransparency.
double glassOpacity(double transparency);
// The fraction of the palette's centre colour in the glass, for a transparency of 0...1.
double glassTint(double transparency);

enum class GlassStyle { Regular, Clear };
// Above this transparency liquid glass is clear instead of frosted.
inline constexpr double clearFrom = 0.6;

// A captured picture of the desktop as seen through glass. Immutable once made.
struct Glass {
    QSize size; // device pixels
    NodeGrid frosted;
    QImage clear; // lightly blurred, refracted near the edges as by a bevel
};

// Makes the glass for a picture of the desktop; null for a null picture. A ratio
// of 0, below 0 or NaN counts as 1. Takes some tens of milliseconds on a large
// screen and may be called on any thread.
std::shared_ptr<const Glass> makeGlass(const QImage& picture, double devicePixelRatio);

// The light along the edges of the glass, brightest at the top left. It is
// computed again only when the size, ratio, style or strength changes.
class GlassRim {
public:
    // Adds the light to the pixels of `clip` (device pixels) in `target`, a
    // premultiplied 32-bit image of the whole window. `strength`: 0...1.
    void add(QImage& target, const QRect& clip, GlassStyle style, double strength);

private:
    struct Look {
        QSize size;
        double ratio = 1;
        GlassStyle style = GlassStyle::Regular;
        double strength = 0;

        bool operator==(const Look&) const = default;
    };
    void light(const Look& look);
    bool hasWholeRow(int y) const;

    std::optional<Look> look_;
    int reach_ = 0;                 // how far the light of an edge reaches, pixels
    std::vector<std::size_t> rows_; // index of each row in light_
    std::vector<quint8> light_;     // whole rows, or only the two ends of a row
};

} // namespace morrowleaf
