// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/weightmatch.h"

#include "tests/fakes/glyphs.h"
#include "tests/fakes/shippedfonts.h"
#include "textanim/shapedtext.h"
#include "textanim/textoutline.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

double signedArea(const QPolygonF& contour) {
    double area = 0;
    for (qsizetype i = 1; i < contour.size(); ++i) {
        area += (contour[i - 1].x() * contour[i].y() - contour[i].x() * contour[i - 1].y()) / 2;
    }
    return area;
}

double areaOf(const QPainterPath& path) {
    double area = 0;
    for (const QPolygonF& contour : path.toSubpathPolygons()) {
        area += signedArea(contour);
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
    struct Face {
        QString name;
        double mostGreek; // between the face that stands in and the one requested
    };
    // The face that stands in for the Greek of the mono face gives the same weight as it
    // in its file, but draws heavier strokes.
    for (const Face& face :
         {Face{u"fraunces"_s, 0.12}, Face{u"serif"_s, 0.12}, Face{u"sans"_s, 0.12},
          Face{u"rounded"_s, 0.12}, Face{u"mono"_s, 0.17}}) {
        const std::string name = face.name.toStdString();
        const TextFont font = quoteFont(shippedFonts(), face.name, 100);
        const double latin = strokeOf(u"nmhuaoe"_s, font);
        const double cyrillic = strokeOf(u"нпишаое"_s, font) / latin;
        const double greek = strokeOf(u"αινοπμ"_s, font) / latin;
        EXPECT_NEAR(cyrillic, 1, 0.12) << name;
        EXPECT_NEAR(greek, 1, face.mostGreek) << name;
        RecordProperty(name, QString::number(cyrillic, 'f', 3).toStdString() + " and " +
                                 QString::number(greek, 'f', 3).toStdString());
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

// Stand-in faces of other scripts, of which some strokes are thin.
TEST(WeightMatch, LetsNoContourCollapse) {
    for (const QString& text :
         {u"العربية خط جميل وقصير"_s, u"सत्यमेव जयते नानृतम्"_s, u"学而时习之不亦说乎龘鬱"_s}) {
        int moved = 0;
        for (const QString& name : {u"fraunces"_s, u"serif"_s, u"sans"_s, u"mono"_s}) {
            const TextFont font = shippedFace(name);
            ASSERT_TRUE(hasGlyphs(text, font)) << text.toStdString();
            for (const PlacedGlyph& glyph : glyphsOf(text, font)) {
                const QPainterPath outline = glyph.face.pathForGlyph(glyph.index);
                const auto before = outline.toSubpathPolygons();
                const auto after = withMovedEdges(outline, glyph.movedEdges).toSubpathPolygons();
                ASSERT_EQ(after.size(), before.size());
                for (qsizetype i = 0; i < before.size(); ++i) {
                    EXPECT_GT(signedArea(before[i]) * signedArea(after[i]), 0)
                        << name.toStdString() << ' ' << glyph.face.familyName().toStdString() << ' '
                        << glyph.index << ' ' << signedArea(before[i]);
                }
                moved += glyph.movedEdges != 0 ? 1 : 0;
            }
        }
        EXPECT_GT(moved, 0) << text.toStdString();
    }
}

} // namespace
