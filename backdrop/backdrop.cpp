// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/backdrop.h"

#include "backdrop/glass.h"
#include "backdrop/kernel.h"
#include "backdrop/keynodes.h"
#include "backdrop/photoground.h"
#include "backdrop/vignette.h"
#include "look/grain.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace morrowleaf {

namespace {

void copyRows(QImage& target, const QRect& clip, const QImage& from) {
    for (int y = clip.top(); y <= clip.bottom(); ++y) {
        std::memcpy(target.scanLine(y) + clip.left() * 4, from.constScanLine(y) + clip.left() * 4,
                    static_cast<std::size_t>(clip.width()) * 4);
    }
}

void clear(QImage& target, const QRect& clip) {
    for (int y = clip.top(); y <= clip.bottom(); ++y) {
        std::memset(target.scanLine(y) + clip.left() * 4, 0,
                    static_cast<std::size_t>(clip.width()) * 4);
    }
}

} // namespace

Layers layersOf(const BackdropState& state, bool hasPicture, bool hasGlass) {
    const DesktopView::Kind kind = state.desktop.kind;
    const double t = clampToUnit(state.transparency);
    if (kind == DesktopView::Kind::Nothing ||
        (kind == DesktopView::Kind::Captured && !hasPicture) || t <= 0) {
        return {};
    }
    if (isDrawnBySystem(state.desktop)) {
        return {.ground = 1 - t};
    }
    const double glass = glassOpacity(t);
    const double tint = glassTint(t);
    Layers layers{.ground = 1 - t, .tint = t * glass * tint};
    if (hasPicture) {
        const double ready = hasGlass ? clampToUnit(state.desktop.glassOpacity) : 0;
        layers.glass = t * glass * (1 - tint) * ready;
        layers.sharp = t * (1 - glass * tint) - layers.glass;
        layers.rim = state.liquidGlass ? t * glass * ready : 0;
    }
    return layers;
}

struct BackdropPainter::Private {
    FittedPicture photo;
    FittedPicture desktop;
    PhotoGround photoGround;
    KeyNodes keys;
    NodeGrid nodes; // of the pixels painted last
    GrainTile tile;
    GlassRim rim;
};

BackdropPainter::BackdropPainter()
    : d_(std::make_unique<Private>()) {}

BackdropPainter::~BackdropPainter() = default;

bool BackdropPainter::moves(const BackdropState& state) {
    return state.animated && !state.hasPhoto && state.screenAnim != ScreenAnim::Still;
}

KeyNodes& BackdropPainter::keys() {
    return d_->keys;
}

void BackdropPainter::paint(QImage& target, const QRect& clip, const BackdropState& state,
                            double since2001) {
    const QRect area = clip & target.rect();
    if (area.isEmpty()) {
        return;
    }
    if (target.format() != QImage::Format_ARGB32_Premultiplied &&
        target.format() != QImage::Format_RGB32) {
        qFatal("The backdrop can only be drawn into premultiplied 32-bit images.");
    }
    const double ratio = target.devicePixelRatio();
    const QSize size = target.size();

    const bool hasDesktop =
        state.desktop.kind == DesktopView::Kind::Captured && !state.desktop.picture.isNull();
    const std::shared_ptr<const Glass> glass =
        hasDesktop && state.desktop.glass && state.desktop.glass->size == size ? state.desktop.glass
                                                                               : nullptr;
    const Layers layers = layersOf(state, hasDesktop, glass != nullptr);
    const QImage& desktop = d_->desktop.fitted(hasDesktop ? state.desktop.picture : QImage(), size);
    if (layers.ground <= 0 && layers.tint <= 0) {
        d_->keys.clear();
        if (hasDesktop) {
            copyRows(target, area, desktop);
        } else {
            clear(target, area);
        }
        return;
    }

    const double shown =
        state.hasPhoto && !state.photo.isNull() ? clampToUnit(state.photoOpacity) : 0.0;
    const double strength = vignetteStrength(state);
    KernelInput input;
    if (shown > 0) {
        const QImage& photo = d_->photoGround.composed(d_->photo.fitted(state.photo, size), ratio,
                                                       strength, state.grainOn);
        if (shown >= 1 && layers.ground >= 1) {
            d_->keys.clear();
            copyRows(target, area, photo);
            return;
        }
        input.pictures[0] = {&photo, layers.ground * shown};
        input.pictureCount = 1;
    }
    const auto shines = [&input](const QImage& image, double weight) {
        if (weight > 0) {
            input.pictures[static_cast<std::size_t>(input.pictureCount++)] = {&image, weight};
        }
    };
    const bool clearGlass = state.liquidGlass && state.transparency > clearFrom;
    if (hasDesktop) {
        shines(desktop, layers.sharp);
        if (glass && clearGlass) {
            shines(glass->clear, layers.glass);
        }
    }

    const double mesh = layers.ground * (1 - shown);
    const double grain = state.grainOn ? mesh : 0;
    Shading shading;
    shading.factor = mesh * (state.grainOn ? 1 - grainOpacity : 1);
    shading.alpha = mesh;
    shading.vignette = strength;
    const QColor& tint = state.palette.colors[4];
    shading.base = {double(tint.blueF()) * layers.tint, double(tint.greenF()) * layers.tint,
                    double(tint.redF()) * layers.tint, layers.tint};
    if (glass && !clearGlass) {
        shading.under = &glass->frosted;
        shading.underWeight = layers.glass;
    }
    d_->keys.setScene({size, ratio, state.screenAnim, state.palette.colors, shading, glass});
    d_->keys.mixInto(d_->nodes, area, since2001);
    d_->tile.build(ratio, grain, hasDesktop || layers.ground >= 1);
    input.nodes = &d_->nodes;
    input.tile = &d_->tile;
    runKernel(target, area, input);
    if (layers.rim > 0) {
        d_->rim.add(target, area, clearGlass ? GlassStyle::Clear : GlassStyle::Regular, layers.rim);
    }
}

} // namespace morrowleaf
