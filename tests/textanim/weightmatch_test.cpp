// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/weightmatch.h"

#include "tests/fakes/shippedfonts.h"
#include "textanim/shapedtext.h"
#include "textanim/textoutline.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

double areaOf(const QPainterPath& path) {
    double area = 0;
    for (const QPolygonF& contour : path.toSubpathPolygons()) {
        for (qsizetype i = 1; i < contour.size(); ++i) {
            area += (contour[i - 1].x() * contour[i].y() - contour[i].x() * contour[i - 1].y()) / 2;
        }
    }
    return std::abs(area);
}

// The mean thickness of the strokes, in points.
double strokeOf(const QString& text, const TextFont& font) {
    double area = 0;
    double length = 0;
    const ShapedText shaped(text, font);
    for (const OutlinePart& part : shaped.outline().parts) { // faces differ in direction
        area += areaOf(part.ink.outline);
        length += part.ink.outline.length();
    }
    return 2 * area / length;
}

TEST(WeightMatch, GreekAndCyrillicAreAsHeavyAsLatin) {
    for (const QString& name : {u"fraunces"_s, u"serif"_s, u"sans"_s, u"rounded"_s}) {
        const TextFont font = quoteFont(shippedFonts(), name, 100);
        const double latin = strokeOf(u"nmhuaoe"_s, font);
        EXPECT_NEAR(strokeOf(u"нпишаое"_s, font) / latin, 1, 0.12) << name.toStdString();
        EXPECT_NEAR(strokeOf(u"αινοπμ"_s, font) / latin, 1, 0.12) << name.toStdString();
        RecordProperty(
            name.toStdString(),
            QString::number(strokeOf(u"нпишаое"_s, font) / latin, 'f', 3).toStdString() + " and " +
                QString::number(strokeOf(u"αινοπμ"_s, font) / latin, 'f', 3).toStdString());
    }
}

TEST(WeightMatch, MovesTheEdgesOfHolesAsWell) {
    QPainterPath ring;
    ring.addRect(0, 0, 100, 100);
    ring.addPolygon(QPolygonF({{30, 30}, {30, 70}, {70, 70}, {70, 30}, {30, 30}}));
    EXPECT_NEAR(areaOf(withMovedEdges(ring, 0)), 10000 - 1600, 1e-9);
    EXPECT_NEAR(areaOf(withMovedEdges(ring, -2)), 96 * 96 - 44 * 44, 1e-9);
    EXPECT_NEAR(areaOf(withMovedEdges(ring, 2)), 104 * 104 - 36 * 36, 1e-9);
    EXPECT_NEAR(areaOf(withMovedEdges(ring.toReversed(), -2)), 96 * 96 - 44 * 44, 1e-9);
}

} // namespace
