// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/graintile.h"
#include "backdrop/nodegrid.h"

#include <QImage>

namespace morrowleaf {

// Scales a picture to fill a size in device pixels, crops it about its centre and
// makes it opaque; a null picture gives a null one. Keeps the last result.
class FittedPicture {
public:
    const QImage& fitted(const QImage& picture, const QSize& size);

private:
    qint64 key_ = 0;
    QImage fitted_;
};

inline constexpr double photoShade = 0.3; // opacity of the black over a photo

// Darkens a photo by photoShade and the vignette (strength 0...1), adds the
// grain, and keeps the last result.
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
