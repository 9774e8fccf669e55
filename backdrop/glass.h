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

// Light on the glass's edges, brightest from the top left; worked out once for
// a size, a style and a strength.
class GlassRim {
public:
    // Added to `target` with `strength` 0...1 within `clip` (device pixels).
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
    int reach_ = 0;                 // pixels; between two sides a row has no light
    std::vector<std::size_t> rows_; // where each begins
    std::vector<quint8> light_;     // of whole rows, or of both sides alone
};

} // namespace morrowleaf
