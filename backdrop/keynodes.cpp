// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/keynodes.h"

#include "backdrop/kernelrow.h"

#include <algorithm>
#include <cmath>

namespace morrowleaf {

namespace {

constexpr double furthest = 1e13; // seconds; some 300,000 years

} // namespace

int keysPerSecond(ScreenAnim motion) {
    // Aurora moves fast and in wide swings, near which nodes do not go in straight lines.
    return motion == ScreenAnim::Aurora ? 5 : 3;
}

void KeyNodes::setScene(const NodeScene& scene) {
    if (scene_ == scene) {
        return;
    }
    const bool sameMesh =
        scene_ && scene_->motion == scene.motion && scene_->colors == scene.colors;
    for (Key& key : keys_) {
        key.shaded = false;
        if (!sameMesh) {
            key.index.reset();
        }
    }
    scene_ = scene;
}

void KeyNodes::clear() {
    scene_.reset();
}

KeyPlace KeyNodes::place(double since2001) const {
    if (!(std::abs(since2001) < furthest) || speed(scene_->motion) == 0) {
        return {};
    }
    const double keys = since2001 * keysPerSecond(scene_->motion);
    const double before = std::floor(keys);
    return {static_cast<qint64>(before), static_cast<qint16>((keys - before) * 32768)};
}

double KeyNodes::instant(qint64 index) const {
    return static_cast<double>(index) / keysPerSecond(scene_->motion);
}

const NodeGrid& KeyNodes::key(qint64 index) {
    const auto slot = static_cast<std::size_t>((index % 3 + 3) % 3);
    Key& key = keys_.at(slot);
    const double phase = instant(index) * speed(scene_->motion);
    if (key.index != index) {
        key.index = index;
        key.shaded = false;
        key.mesh.build(unfolded(meshDrift(phase, amplitude(scene_->motion))), scene_->colors);
    }
    if (!key.shaded) {
        key.shaded = true;
        key.nodes.resize(scene_->size, scene_->ratio);
        shadeNodes(key.nodes, scene_->size, scene_->ratio, key.mesh,
                   backdropScale(scene_->motion, phase), scene_->shading);
        ++computed_;
    }
    return key.nodes;
}

void KeyNodes::mix(const KeyPlace& place, int row, int column, int count, qint16* out) {
    const qint16* before = key(place.index).row(row) + column * 4;
    if (place.weight == 0) {
        std::copy_n(before, count * 4, out);
        return;
    }
    static const MixFunction mixRows = hasAvx2() ? mixRowsAvx2 : mixRowsPortable;
    mixRows(before, key(place.index + 1).row(row) + column * 4, place.weight, out, count * 4);
}

void KeyNodes::mixInto(NodeGrid& nodes, const QRect& clip, double since2001) {
    nodes.resize(scene_->size, scene_->ratio);
    const KeyPlace at = place(since2001);
    const int column = clip.left() / nodes.cell;
    const int count = clip.right() / nodes.cell + 2 - column;
    for (int row = clip.top() / nodes.cell; row <= clip.bottom() / nodes.cell + 1; ++row) {
        mix(at, row, column, count, nodes.row(row) + column * 4);
    }
}

} // namespace morrowleaf
