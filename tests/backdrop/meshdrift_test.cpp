// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/mesh.h"

#include <gtest/gtest.h>

#include <cmath>

namespace morrowleaf {
namespace {

TEST(MeshDrift, TheTopCentreFollowsItsSine) {
    EXPECT_FLOAT_EQ(meshDrift(0)[1].x, 0.5F + float(0.16 * std::sin(1.7)));
    EXPECT_NEAR(meshDrift(0, 0.16)[1].x, 0.659, 0.0005);
}

TEST(MeshDrift, FollowsItsRatesAndOffsets) {
    const double t = 8.1e8 * 0.11;
    const double a = 0.26;
    const auto at = [a](double phase) { return 0.5F + static_cast<float>(std::sin(phase) * a); };
    const MeshPoints p = meshDrift(t, a);
    EXPECT_EQ(p[1].x, at(t + 1.7));
    EXPECT_EQ(p[3].y, at(0.7 * t + 0.4));
    EXPECT_EQ(p[4].x, at(1.3 * t + 2.9));
    EXPECT_EQ(p[4].y, at(0.9 * t + 1.1));
    EXPECT_EQ(p[5].y, at(1.1 * t + 1.2));
    EXPECT_EQ(p[7].x, at(0.8 * t + 2.3));
}

TEST(MeshDrift, LeavesCornersAndEdgesInPlace) {
    for (int step = 0; step < 143; ++step) {
        const double t = 0.7 * step;
        const MeshPoints p = meshDrift(t, 0.26);
        for (const std::size_t corner : {0U, 2U, 6U, 8U}) {
            EXPECT_EQ(p[corner].x, corner % 3 == 2 ? 1 : 0);
            EXPECT_EQ(p[corner].y, corner > 5 ? 1 : 0);
        }
        EXPECT_EQ(p[1].y, 0);
        EXPECT_EQ(p[3].x, 0);
        EXPECT_EQ(p[5].x, 1);
        EXPECT_EQ(p[7].y, 1);
    }
}

TEST(MeshDrift, MovesSmoothlyAtPhasesAround1e8) {
    // At a phase near 1e8, single precision would not change for seconds.
    const double t = 8.1e8 * 0.11;
    EXPECT_NE(meshDrift(t)[4].x, meshDrift(t + 0.11 / 30)[4].x);
    EXPECT_NEAR(meshDrift(t)[4].x, meshDrift(t + 0.11 / 30)[4].x, 0.001);
}

bool same(const MeshPoints& a, const MeshPoints& b) {
    for (std::size_t i = 0; i < 9; ++i) {
        if (a[i].x != b[i].x || a[i].y != b[i].y) {
            return false;
        }
    }
    return true;
}

TEST(MeshSurface, OnlyTheWidestSwingsAreEverDrawnBack) {
    int scaledTowardsRest = 0;
    for (int step = 0; step < 1260; ++step) { // one period: all rates are multiples of 0.1
        const double t = 0.05 * step;
        EXPECT_TRUE(same(unfolded(meshDrift(t, 0.1)), meshDrift(t, 0.1))) << t;
        EXPECT_TRUE(same(unfolded(meshDrift(t, 0.16)), meshDrift(t, 0.16))) << t;
        scaledTowardsRest += same(unfolded(meshDrift(t, 0.26)), meshDrift(t, 0.26)) ? 0 : 1;
    }
    EXPECT_GT(scaledTowardsRest, 0);
    EXPECT_LT(scaledTowardsRest, 63 * 20 / 10);
}

TEST(MeshSurface, NeverFoldsAndNeverJumpsOnceDrawnBack) {
    MeshPoints last = unfolded(meshDrift(0, 0.26));
    for (int step = 0; step < 6300; ++step) {
        const double t = 0.01 * step;
        const MeshPoints now = unfolded(meshDrift(t, 0.26));
        for (int i = 0; i <= 40; ++i) {
            for (int j = 0; j <= 40; j += 4) {
                ASSERT_GT(surfaceAt(now, i / 20.0, j / 20.0).determinant(), 0.025) << t;
            }
        }
        for (std::size_t i = 0; i < 9; ++i) {
            ASSERT_NEAR(now[i].x, last[i].x, 0.012) << t;
            ASSERT_NEAR(now[i].y, last[i].y, 0.012) << t;
        }
        last = now;
    }
}

TEST(MeshSurface, PassesThroughItsKnotsWithWeightsThatSumToOne) {
    for (int step = -1; step <= 41; ++step) {
        const double u = 0.05 * step;
        const KnotWeights w = knotWeights(u);
        EXPECT_NEAR(w.value[0] + w.value[1] + w.value[2], 1, 1e-12);
        EXPECT_NEAR(w.slope[0] + w.slope[1] + w.slope[2], 0, 1e-12);
    }
    const MeshPoints p = meshDrift(9);
    const SurfacePoint centre = surfaceAt(p, 1, 1);
    EXPECT_NEAR(centre.x, p[4].x, 1e-12);
    EXPECT_NEAR(centre.y, p[4].y, 1e-12);
    const SurfacePoint edge = surfaceAt(p, 2, 1);
    EXPECT_NEAR(edge.x, 1, 1e-12);
    EXPECT_NEAR(edge.y, p[5].y, 1e-12);
}

} // namespace
} // namespace morrowleaf
