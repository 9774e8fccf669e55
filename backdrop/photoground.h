// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/graintile.h"
#include "backdrop/nodegrid.h"

#include <QImage>

namespace morrowleaf {

// A picture as opaque 32-bit pixels of a wanted size: itself where it fits,
// else filling the size, cut to it about its centre. Remembers the last one.
class FittedPicture {
public:
    const QImage& fitted(const QImage& picture, const QSize& size);

private:
    qint64 key_ = 0;
    QImage fitted_;
};

inline constexpr double photoShade = 0.3; // black over a photo

// A photo with its shade, vignette and grain, composed once and remembered.
class PhotoGround {
public:
    const QImage& composed(const QImage& photo, double devicePixelRatio, double vignette,
                           bool grainOn);

private:
    qint64 key_ = 0;
    double ratio_ = 0;
    double vignette_ = 0;
    bool grainOn_ = false;
    QImage composed_;
};

} // namespace morrowleaf
