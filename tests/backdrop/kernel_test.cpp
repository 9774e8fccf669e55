// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/kernel.h"

#include "backdrop/mesh.h"
#include "look/grain.h"
#include "look/palettes.h"
#include "tests/backdrop/backdropreference.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <random>

namespace morrowleaf {
namespace {

QImage drawn(const Reference& what, KernelPath path, const QRect& clip) {
    MeshLattice mesh;
    mesh.build(unfolded(what.points), what.colors);
    NodeGrid nodes;
    nodes.resize(what.size, what.ratio);
    Shading shading;
    shading.factor = what.opacity * (what.grainOn ? 1 - grainOpacity : 1);
    shading.alpha = what.opacity;
    shading.vignette = what.vignette;
    shading.base = what.base;
    shadeNodes(nodes, what.size, what.ratio, mesh, what.scale, shading);
    GrainTile tile;
    tile.build(what.ratio, what.grainOn ? what.opacity : 0, false);
    KernelInput input;
    input.nodes = &nodes;
    input.tile = &tile;
    QImage image(what.size, QImage::Format_ARGB32_Premultiplied);
    image.fill(0x12345678);
    runKernel(image, clip, input, path);
    return image;
}

QImage drawn(const Reference& what, KernelPath path) {
    return drawn(what, path, QRect(QPoint(0, 0), what.size));
}

// Expects that no colour exceeds alpha, that 99.9 % of the lanes are within one
// level of the reference and none is off by more than 4, and that the mean of
// each 16 × 16 block is within 0.35.
void expectClose(const QImage& image, const Reference& what) {
    const std::vector<QRgb> wanted = what.draw();
    const int width = what.size.width();
    qint64 off = 0;
    int worst = 0;
    const auto lane = [](QRgb pixel, int n) { return static_cast<int>((pixel >> (8 * n)) & 255); };
    const auto at = [&](int x, int y) {
        return reinterpret_cast<const QRgb*>(image.constScanLine(y))[x];
    };
    const auto want = [&](int x, int y) { return wanted[static_cast<std::size_t>(y * width + x)]; };
    int overAlpha = 0;
    for (int y = 0; y < what.size.height(); ++y) {
        for (int x = 0; x < width; ++x) {
            for (int n = 0; n < 4; ++n) {
                const int difference = std::abs(lane(at(x, y), n) - lane(want(x, y), n));
                worst = std::max(worst, difference);
                off += difference > 1 ? 1 : 0;
                overAlpha += lane(at(x, y), n) > lane(at(x, y), 3) ? 1 : 0;
            }
        }
    }
    EXPECT_LE(worst, 4);
    EXPECT_LE(off, qint64(width) * what.size.height() * 4 / 1000);
    EXPECT_EQ(overAlpha, 0);
    double worstMean = 0;
    for (int y = 0; y + 16 <= what.size.height(); y += 16) {
        for (int x = 0; x + 16 <= width; x += 16) {
            for (int n = 0; n < 4; ++n) {
                int sum = 0;
                for (int i = 0; i < 256; ++i) {
                    sum +=
                        lane(at(x + i % 16, y + i / 16), n) - lane(want(x + i % 16, y + i / 16), n);
                }
                worstMean = std::max(worstMean, std::abs(sum / 256.0));
            }
        }
    }
    EXPECT_LE(worstMean, 0.35);
}

class KernelTest : public testing::TestWithParam<KernelPath> {
protected:
    void SetUp() override {
        if (!kernelPathAvailable(GetParam())) {
            GTEST_SKIP() << "this processor lacks the path";
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Paths, KernelTest, testing::Values(KernelPath::Portable, KernelPath::Avx2),
                         [](const auto& info) {
                             return info.param == KernelPath::Avx2 ? "Avx2" : "Portable";
                         });

TEST_P(KernelTest, StaysCloseToTheReferenceForRandomMeshes) {
    std::mt19937 random(20261121);
    const auto real = [&](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    const std::array sizes{QSize(1, 1),    QSize(7, 3),     QSize(8, 8),     QSize(9, 17),
                           QSize(161, 90), QSize(333, 217), QSize(640, 401), QSize(3, 200)};
    const std::array ratios{1.0, 1.25, 1.5, 2.0, 4.0 / 3};
    const std::array amplitudes{0.1, 0.16, 0.26};
    for (int round = 0; round < 24; ++round) {
        Reference what;
        what.points = meshDrift(real(0, 1e8), amplitudes[random() % 3]);
        what.colors = Palette::all()[random() % 9].colors;
        if (round % 6 == 5) {
            for (QColor& color : what.colors) {
                color = QColor::fromRgb(static_cast<QRgb>(random()) | 0xFF000000U);
            }
        }
        what.scale = real(0.995, 1.12);
        what.vignette = real(0, 1);
        what.grainOn = random() % 2 == 0;
        what.opacity = round % 3 == 0 ? 1 : real(0, 1);
        what.size = sizes[static_cast<std::size_t>(round) % sizes.size()];
        what.ratio = ratios[random() % ratios.size()];
        SCOPED_TRACE(testing::Message()
                     << "round " << round << ", " << what.size.width() << "x" << what.size.height()
                     << ", ratio " << what.ratio << ", opacity " << what.opacity);
        expectClose(drawn(what, GetParam()), what);
    }
}

TEST_P(KernelTest, StaysCloseWhereTheMeshNearlyFolds) {
    // The widest swings fold the mesh at or near these phases.
    for (const double phase : {42.54, 42.2, 41.9, 43.0}) {
        Reference what;
        what.points = meshDrift(phase, 0.26);
        what.colors = Palette::all()[1].colors;
        what.size = {800, 500};
        SCOPED_TRACE(phase);
        expectClose(drawn(what, GetParam()), what);
    }
}

TEST_P(KernelTest, FillsTheRimOfAShrunkMeshWithItsEdge) {
    Reference what;
    what.points = meshDrift(3, 0.1);
    what.colors = Palette::all()[7].colors;
    what.scale = 0.995;
    what.size = {1201, 700};
    what.grainOn = false;
    expectClose(drawn(what, GetParam()), what);
}

TEST_P(KernelTest, WhiteWithGrainAndDitherSaturates) {
    Reference what;
    what.points = meshDrift(0, 0.16);
    what.colors.fill(Qt::white);
    what.size = {331, 170};
    what.base = {1, 1, 1, 1}; // with the mesh, up to twice the largest level
    const QImage image = drawn(what, GetParam());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ASSERT_EQ(image.pixel(x, y), 0xFFFFFFFFU);
        }
    }
}

TEST_P(KernelTest, ATransparentFrameIsClear) {
    Reference what;
    what.points = meshDrift(0, 0.16);
    what.colors = Palette::all()[0].colors;
    what.opacity = 0;
    what.size = {50, 40};
    const QImage image = drawn(what, GetParam());
    QImage clear = image;
    clear.fill(0);
    EXPECT_EQ(image, clear);
}

TEST_P(KernelTest, AClippedRepaintGivesTheSamePixelsAndTouchesNoOthers) {
    Reference what;
    what.points = meshDrift(5, 0.16);
    what.colors = Palette::all()[2].colors;
    what.size = {203, 90};
    what.ratio = 1.25;
    const QImage whole = drawn(what, GetParam());
    for (const QRect clip : {QRect(0, 0, 1, 1), QRect(3, 5, 2, 7), QRect(7, 0, 130, 90),
                             QRect(195, 80, 8, 10), QRect(16, 16, 16, 16), QRect(201, 3, 2, 2)}) {
        const QImage part = drawn(what, GetParam(), clip);
        for (int y = 0; y < whole.height(); ++y) {
            for (int x = 0; x < whole.width(); ++x) {
                const auto pixel = reinterpret_cast<const QRgb*>(part.constScanLine(y))[x];
                const auto full = reinterpret_cast<const QRgb*>(whole.constScanLine(y))[x];
                ASSERT_EQ(pixel, clip.contains(x, y) ? full : 0x12345678U) << x << ' ' << y;
            }
        }
    }
}

TEST(KernelPaths, AgreeToTheLastBit) {
    if (!kernelPathAvailable(KernelPath::Avx2)) {
        GTEST_SKIP() << "this processor has one path";
    }
    for (const double opacity : {0.03, 0.5, 1.0}) {
        Reference what;
        what.points = meshDrift(77, 0.26);
        what.colors = Palette::all()[6].colors;
        what.opacity = opacity;
        what.size = {517, 301};
        what.ratio = 1.5;
        EXPECT_EQ(drawn(what, KernelPath::Portable), drawn(what, KernelPath::Avx2));
    }
}

TEST(KernelPaths, AgreeWithPictures) {
    if (!kernelPathAvailable(KernelPath::Avx2)) {
        GTEST_SKIP() << "this processor has one path";
    }
    QImage picture(77, 33, QImage::Format_RGB32);
    std::mt19937 random(1);
    for (int y = 0; y < 33; ++y) {
        for (int x = 0; x < 77; ++x) {
            picture.setPixel(x, y, static_cast<QRgb>(random()) | 0xFF000000U);
        }
    }
    NodeGrid nodes;
    nodes.resize(picture.size(), 1);
    std::fill(nodes.lanes.begin(), nodes.lanes.end(), qint16(8192));
    GrainTile tile;
    tile.build(1, 1, true);
    for (const bool multiply : {false, true}) {
        KernelInput input;
        input.nodes = &nodes;
        input.tile = &tile;
        input.pictures[0] = {&picture, 0.37};
        input.pictureCount = 1;
        input.multiply = multiply;
        QImage one(picture.size(), QImage::Format_RGB32);
        QImage other(picture.size(), QImage::Format_RGB32);
        runKernel(one, one.rect(), input, KernelPath::Portable);
        runKernel(other, other.rect(), input, KernelPath::Avx2);
        EXPECT_EQ(one, other);
    }
}

} // namespace
} // namespace morrowleaf
