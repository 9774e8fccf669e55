// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/meshlattice.h"
#include "backdrop/nodegrid.h"
#include "look/animationkinds.h"

#include <QColor>
#include <QRect>

#include <array>
#include <memory>
#include <optional>

namespace morrowleaf {

struct Glass; // glass.h

// The nodes of a moving backdrop are computed so many times a second, from each whole second
// since 2001 on, and interpolated linearly in between.
int keysPerSecond(ScreenAnim motion);

// What the nodes of a backdrop depend on, except the time.
struct NodeScene {
    QSize size; // device pixels
    double ratio = 1;
    ScreenAnim motion = ScreenAnim::Drift;
    std::array<QColor, 9> colors;
    Shading shading;
    std::shared_ptr<const Glass> glass; // keeps alive what shading.under points to

    bool operator==(const NodeScene&) const = default;
};

// An instant between key `index` and the next one.
struct KeyPlace {
    qint64 index = 0;
    qint16 weight = 0; // of the next key; 32768 would be 1
};

// The nodes of a backdrop at any instant: a function of the scene and the instant
// alone. Keeps the keys that were asked for last, three in a row.
class KeyNodes {
public:
    void setScene(const NodeScene& scene);
    // Null before setScene() and after clear().
    const std::optional<NodeScene>& scene() const { return scene_; }
    void clear();

    // An instant that is no number or absurdly far away counts as 0; so does every
    // instant of a scene that stands still.
    KeyPlace place(double since2001) const;
    // The instant of a key, seconds since 2001, and the nodes at it.
    double instant(qint64 index) const;
    const NodeGrid& key(qint64 index);
    // Writes `count` nodes of the row `row`, from the column `column` on.
    void mix(const KeyPlace& place, int row, int column, int count, qint16* out);
    // Resizes `nodes` for the scene, and writes those that the pixels of `clip` need.
    void mixInto(NodeGrid& nodes, const QRect& clip, double since2001);

    // How often the nodes of a key have been computed.
    int computed() const { return computed_; }

private:
    struct Key {
        std::optional<qint64> index; // of the lattice
        bool shaded = false;
        MeshLattice mesh;
        NodeGrid nodes;
    };

    std::optional<NodeScene> scene_;
    std::array<Key, 3> keys_;
    int computed_ = 0;
};

} // namespace morrowleaf
