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
    QString name; // English
    // The colours of the points of a three-by-three mesh, row by row from the top left.
    std::array<QColor, 9> colors;
    QColor ink;
    bool light = false; // light ground, dark ink

    QString shownName() const; // in the language of the user

    // The opaque colour 0xRRGGBB; bits 24-31 are ignored.
    static QColor hex(quint32 rgb);

    static std::span<const Palette> all(); // the nine, in the order of their index
    static const Palette& photo();         // for texts over a photo
    // The palette of the day; it advances by one at every local midnight.
    static const Palette& ofTheDay(const Moment& moment);
    // The palette with that index, or the palette of the day if there is none.
    static const Palette& current(qint64 paletteIndex, const Moment& moment);
};

} // namespace morrowleaf
