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

// There is no glass up to this transparency (0...1).
inline constexpr double leastTransparency = 0.01;
// The opacity of the glass: min(4 (1 - t), 1) for a transparency t of 0...1.
double glassOpacity(double transparency);
// The share of the palette's centre colour in the glass.
double glassTint(double transparency);

enum class GlassStyle { Regular, Clear };
// Above this transparency liquid glass is clear instead of frosted.
inline constexpr double clearFrom = 0.6;

// The captured picture of a desktop under glass; never changes once made.
struct Glass {
    QSize size; // device pixels
    NodeGrid frosted;
    QImage clear; // lightly blurred, bent towards the edges as by a bevel
};

// Takes some tens of milliseconds on a large screen and may run on any thread.
// Null for a null picture. A ratio that is not above 0 counts as 1.
std::shared_ptr<const Glass> makeGlass(const QImage& picture, double devicePixelRatio);

// The light on the edges of the glass, brightest from the top left; computed
// once for a size, a style and a strength.
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
    int reach_ = 0;                 // pixels; rows between both edges have no light inside it
    std::vector<std::size_t> rows_; // the index at which each row begins
    std::vector<quint8> light_;     // of whole rows, or of both sides alone
};

} // namespace morrowleaf
