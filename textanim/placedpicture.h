// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>

#include <vector>

namespace morrowleaf {

// Pixels with their place relative to the line's origin on the device.
struct PlacedPicture {
    QImage picture; // premultiplied
    QPoint origin;
};

// The whole pixels that a rectangle in points touches at a device scale.
QRect deviceRect(const QRectF& points, double scale);

// Pictures in memory that is kept from frame to frame: they are valid until it
// is used again. The pixels of the first are not set.
QImage unpaintedPicture(QSize size, std::vector<QRgb>& memory);
QImage transparentPicture(QSize size, std::vector<QRgb>& memory);

} // namespace morrowleaf
