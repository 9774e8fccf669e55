// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/keynodes.h"

#include "tests/backdrop/drawnbackdrop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace morrowleaf {
namespace {

NodeScene sceneOf(ScreenAnim motion) {
    return {large, 1, motion, Palette::all()[6].colors, Shading(), nullptr};
}

// The nodes at any instant, without interpolation.
NodeGrid exactNodes(const NodeScene& scene, double at) {
    const double phase = at * speed(scene.motion);
    MeshLattice mesh;
    mesh.build(unfolded(meshDrift(phase, amplitude(scene.motion))), scene.colors);
    NodeGrid nodes;
    nodes.resize(scene.size, scene.ratio);
    shadeNodes(nodes, scene.size, scene.ratio, mesh, backdropScale(scene.motion, phase),
               scene.shading);
    return nodes;
}

NodeGrid mixed(KeyNodes& keys, double at) {
    NodeGrid nodes;
    keys.mixInto(nodes, QRect(QPoint(), large), at);
    return nodes;
}

// The mean difference between two grids in squares of 5 nodes, at the most; in levels.
double widestMean(const NodeGrid& a, const NodeGrid& b) {
    constexpr int side = 5;
    double widest = 0;
    for (int top = 0; top + side <= a.rows; top += side) {
        for (int left = 0; left + side <= a.columns; left += side) {
            std::array<double, 4> sums{};
            for (int i = 0; i < side * side * 4; ++i) {
                const int at = i / 4 % side * 4 + i % 4;
                const int row = top + i / 4 / side;
                sums[static_cast<std::size_t>(i % 4)] +=
                    a.row(row)[left * 4 + at] - b.row(row)[left * 4 + at];
            }
            for (const double sum : sums) {
                widest = std::max(widest, std::abs(sum) / (side * side) / 64);
            }
        }
    }
    return widest;
}

} // namespace

TEST(KeyNodes, AreExactAtTheirInstants) {
    for (const ScreenAnim motion : allScreenAnims) {
        KeyNodes keys;
        keys.setScene(sceneOf(motion));
        const qint64 index = keys.place(now).index;
        EXPECT_EQ(keys.instant(index), motion == ScreenAnim::Still ? 0 : now);
        for (const qint64 more : {0, 1, -7, 61}) {
            const double at = keys.instant(index + more);
            EXPECT_EQ(keys.key(index + more).lanes, exactNodes(sceneOf(motion), at).lanes) << more;
        }
        EXPECT_EQ(mixed(keys, now).lanes, keys.key(index).lanes);
    }
}

TEST(KeyNodes, AreNearlyExactInBetween) {
    struct Most {
        ScreenAnim motion;
        double mean; // levels
    };
    for (const auto [motion, mean] :
         {Most{ScreenAnim::Drift, 0.03}, Most{ScreenAnim::Breathe, 0.03},
          Most{ScreenAnim::Zoom, 0.03}, Most{ScreenAnim::Aurora, 0.55}}) {
        KeyNodes keys;
        keys.setScene(sceneOf(motion));
        const double middle = now + 0.5 / keysPerSecond(motion);
        double widest = 0;
        for (int seconds = 0; seconds < 60; seconds += 2) {
            const double at = middle + seconds;
            widest = std::max(widest, widestMean(mixed(keys, at), exactNodes(sceneOf(motion), at)));
        }
        EXPECT_LE(widest, mean) << int(motion);
    }
}

TEST(KeyNodes, AreComputedOnceForAnInterval) {
    BackdropPainter painter;
    BackdropState state = plainState(6);
    QImage image(small, QImage::Format_RGB32);
    for (int tick = 0; tick < 300; ++tick) {
        painter.paint(image, image.rect(), state, now + tick * backdropInterval);
    }
    EXPECT_LE(painter.keys().computed(), 10 * keysPerSecond(state.screenAnim) + 2);
    const int before = painter.keys().computed();
    state.screenAnim = ScreenAnim::Still;
    for (int tick = 0; tick < 30; ++tick) {
        painter.paint(image, image.rect(), state, now + tick);
    }
    EXPECT_EQ(painter.keys().computed(), before + 1);
}

} // namespace morrowleaf
