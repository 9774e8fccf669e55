// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/pentrace.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace morrowleaf;

namespace {

QPainterPath twoContours() {
    QPainterPath path;
    path.addRect(10, 10, 30, 20);
    path.addEllipse(60, 10, 20, 20);
    return path;
}

double coverage(const QImage& picture) {
    double sum = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            sum += picture.constScanLine(y)[x] / 255.0;
        }
    }
    return sum;
}

TEST(PenTrace, FollowsAllContoursOneAfterAnother) {
    const PenTrace trace = penTrace(twoContours(), 12);
    EXPECT_NEAR(trace.length, 100 + 20 * M_PI, 0.1);
    double length = 0;
    int contours = 0;
    for (const PenStretch& stretch : trace.stretches) {
        EXPECT_NEAR(stretch.begin, length, 1e-9);
        length += stretch.length;
        contours += stretch.opensContour ? 1 : 0;
    }
    EXPECT_NEAR(length, trace.length, 1e-9);
    EXPECT_EQ(contours, 2);
    EXPECT_TRUE(penTrace({}, 12).stretches.empty());
}

TEST(PenDrawing, CoversTheTracedLengthTimesItsWidth) {
    const PenTrace trace = penTrace(twoContours(), 12);
    for (const double share : {0.1, 0.33, 0.5, 0.77, 1.0}) {
        PenDrawing pen(2, 0.8, QRect(0, 0, 200, 80), 0);
        EXPECT_NEAR(coverage(pen.at(trace, share * trace.length)), share * trace.length * 0.8 * 4,
                    6.0)
            << share;
    }
    PenDrawing pen(2, 0.8, QRect(0, 0, 200, 80), 0);
    EXPECT_EQ(coverage(pen.at(trace, 0)), 0);
}

TEST(PenDrawing, DependsOnlyOnTheTracedLength) {
    const PenTrace trace = penTrace(twoContours(), 12);
    PenDrawing forward(1.25, 0.8, QRect(0, 0, 120, 50), 0.3);
    for (const double share : {0.0, 0.02, 0.1, 0.11, 0.4, 0.9, 1.0, 0.55, 0.56, 0.1, 1.0, 0.3}) {
        PenDrawing fresh(1.25, 0.8, QRect(0, 0, 120, 50), 0.3);
        EXPECT_EQ(forward.at(trace, share * trace.length), fresh.at(trace, share * trace.length))
            << share;
    }
}

TEST(PenDrawing, StretchesMeetWithoutGapOrOverlap) {
    QPainterPath line(QPointF(5, 10.25));
    line.lineTo(95, 10.25);
    for (const double cut : {7.0, 13.0, 1000.0}) {
        const PenTrace trace = penTrace(line, cut);
        PenDrawing pen(1, 2, QRect(0, 0, 100, 20), 0);
        const QImage drawn = pen.at(trace, trace.length);
        for (int x = 8; x < 92; ++x) {
            int column = 0;
            for (int y = 0; y < 20; ++y) {
                column += drawn.constScanLine(y)[x];
            }
            EXPECT_NEAR(column, 2 * 255, 8) << "at " << x << " cut " << cut;
        }
    }
}

} // namespace
