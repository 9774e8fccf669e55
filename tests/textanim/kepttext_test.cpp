// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/shapedtext.h"

#include "tests/fakes/shippedfonts.h"

#include <QPainter>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

const QColor ink(240, 230, 210, 150);

ShapedText sentence() {
    return ShapedText(u"Good morning, Ava"_s, quoteFont(shippedFonts(), u"fraunces"_s, 21), 0.4);
}

QImage ground(double ratio) {
    QImage frame(600, 160, QImage::Format_ARGB32_Premultiplied);
    frame.fill(QColor(40, 70, 90));
    frame.setDevicePixelRatio(ratio);
    return frame;
}

template <typename Paint>
QImage painted(double ratio, QPointF at, double scale, const Paint& paint) {
    QImage frame = ground(ratio);
    QPainter painter(&frame);
    painter.translate(at);
    painter.scale(scale, scale);
    paint(painter);
    return frame;
}

int worstDifference(const QImage& a, const QImage& b) {
    int worst = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width() * 4; ++x) {
            worst = std::max(worst, std::abs(a.constScanLine(y)[x] - b.constScanLine(y)[x]));
        }
    }
    return worst;
}

TEST(KeptText, DrawsTheSamePixelsFromItsPicture) {
    const ShapedText text = sentence();
    for (const double ratio : {1.0, 1.25, 2.0}) {
        KeptText kept;
        for (const QPointF at : {QPointF(10.3, 20.6), QPointF(-30.5, 12)}) {
            for (const double scale : {1.0, 0.83}) {
                const QImage direct = painted(
                    ratio, at, scale, [&](QPainter& painter) { text.paint(painter, {}, ink); });
                ASSERT_NE(direct, ground(ratio));
                for (int frame = 0; frame < 3; ++frame) {
                    const QImage again = painted(ratio, at, scale, [&](QPainter& painter) {
                        kept.paint(painter, text, ink);
                    });
                    EXPECT_LE(worstDifference(direct, again), 1) << ratio << ' ' << frame;
                }
            }
        }
    }
}

TEST(KeptText, FollowsItsColour) {
    const ShapedText text = sentence();
    KeptText kept;
    for (const int alpha : {40, 40, 90, 90, 90, 255, 255}) {
        QColor color = ink;
        color.setAlpha(alpha);
        const auto direct = [&](QPainter& painter) { text.paint(painter, {}, color); };
        const auto fromKept = [&](QPainter& painter) { kept.paint(painter, text, color); };
        EXPECT_LE(worstDifference(painted(1, {5, 5}, 1, direct), painted(1, {5, 5}, 1, fromKept)),
                  1)
            << alpha;
    }
}

TEST(KeptText, HonoursTheClipAndLeavesThePainterAlone) {
    const ShapedText text = sentence();
    KeptText kept;
    for (int frame = 0; frame < 3; ++frame) {
        const QImage image = painted(2, {10, 10}, 1, [&](QPainter& painter) {
            painter.setClipRect(QRect(0, 0, 40, 80));
            const QTransform before = painter.transform();
            kept.paint(painter, text, ink);
            EXPECT_EQ(painter.transform(), before);
        });
        EXPECT_NE(image.copy(0, 0, 100, 160), ground(2).copy(0, 0, 100, 160));
        EXPECT_EQ(image.copy(100, 0, 500, 160), ground(2).copy(100, 0, 500, 160));
    }
}

TEST(KeptText, DrawsNothingForAnEmptyText) {
    KeptText kept;
    for (int frame = 0; frame < 3; ++frame) {
        const QImage image = painted(
            1, {10, 10}, 1, [&](QPainter& painter) { kept.paint(painter, ShapedText(), ink); });
        EXPECT_EQ(image, ground(1));
    }
}

} // namespace
