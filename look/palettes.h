// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/moment.h"

#include <QColor>
#include <QString>

#include <array>
#include <span>

namespace morrowleaf {

// The colours of the quote screen, opaque sRGB.
struct Palette {
    QString name;
    // Of the points of a three-by-three mesh, row by row from the top left.
    std::array<QColor, 9> colors;
    QColor ink;
    bool light = false; // light ground, dark ink

    // Bits 16-23 are red, 8-15 green, 0-7 blue; the others are ignored.
    static QColor hex(quint32 rgb);

    static std::span<const Palette> all(); // the nine, in the order of their index
    static const Palette& photo();         // over a photo
    // Advances by one at every local midnight.
    static const Palette& ofTheDay(const Moment& moment);
    // The palette with that index, else the palette of the day.
    static const Palette& current(qint64 paletteIndex, const Moment& moment);
};

} // namespace morrowleaf
