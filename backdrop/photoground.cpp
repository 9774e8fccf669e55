// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/photoground.h"

#include "backdrop/kernel.h"
#include "look/grain.h"

namespace morrowleaf {

const QImage& FittedPicture::fitted(const QImage& picture, const QSize& size) {
    if (picture.isNull()) {
        key_ = 0;
        fitted_ = {};
    } else if (key_ != picture.cacheKey() || fitted_.size() != size) {
        key_ = picture.cacheKey();
        QImage whole = picture;
        if (whole.size() != size) {
            whole = picture.scaled(size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
            whole = whole.copy({(whole.width() - size.width()) / 2,
                                (whole.height() - size.height()) / 2, size.width(), size.height()});
        }
        fitted_ = whole.convertToFormat(QImage::Format_RGB32);
    }
    return fitted_;
}

const QImage& PhotoGround::composed(const QImage& photo, double devicePixelRatio, double vignette,
                                    bool grainOn) {
    if (key_ == photo.cacheKey() && ratio_ == devicePixelRatio && vignette_ == vignette &&
        grainOn_ == grainOn) {
        return composed_;
    }
    key_ = photo.cacheKey();
    ratio_ = devicePixelRatio;
    vignette_ = vignette;
    grainOn_ = grainOn;
    if (composed_.size() != photo.size()) {
        composed_ = QImage(photo.size(), QImage::Format_RGB32);
    }

    // The nodes of a white mesh serve as factors; 16384 stands for 1.
    MeshLattice white;
    std::array<QColor, 9> colors;
    colors.fill(Qt::white);
    white.build(meshDrift(0, 0), colors);
    NodeGrid factors;
    factors.resize(photo.size(), devicePixelRatio);
    Shading shading;
    shading.factor = (1 - photoShade) * (grainOn ? 1 - grainOpacity : 1) * 16384.0 / fullLane;
    shading.vignette = vignette;
    shadeNodes(factors, photo.size(), devicePixelRatio, white, 1, shading);
    GrainTile tile;
    tile.build(devicePixelRatio, grainOn ? 1 : 0, true);
    KernelInput input;
    input.nodes = &factors;
    input.tile = &tile;
    input.pictures[0] = {&photo, 1};
    input.pictureCount = 1;
    input.multiply = true;
    runKernel(composed_, composed_.rect(), input);
    return composed_;
}

} // namespace morrowleaf
