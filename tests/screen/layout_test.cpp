// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/layout.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace morrowleaf;

TEST(ScreenScale, IsTheHeightOver982WithinItsBounds) {
    EXPECT_EQ(screenScale(982), 1);
    EXPECT_EQ(44 * screenScale(700), 37.4);
    EXPECT_EQ(44 * screenScale(2000), 68.2);
    EXPECT_EQ(screenScale(std::nullopt), 1);
    EXPECT_EQ(screenScale(std::numeric_limits<double>::quiet_NaN()), 0.85);
    EXPECT_EQ(screenScale(-1), 0.85);
    EXPECT_DOUBLE_EQ(screenScale(1080), 1080.0 / 982);
}

TEST(WrapTarget, FollowsTheMainScreen) {
    EXPECT_EQ(wrapTarget(1512, 0, 1), 41);
    EXPECT_EQ(wrapTarget(1440, 0, 900.0 / 982), 45);
    EXPECT_EQ(wrapTarget(1280, 0, 0.85), 48);
}

TEST(WrapTarget, CapsTheWidthAfterTheInset) {
    EXPECT_EQ(wrapTarget(1512, 320, 1), 41); // 1192 left, still capped
    EXPECT_EQ(wrapTarget(1440, 320, 1), 38); // 1120 left
    EXPECT_EQ(wrapTarget(std::nullopt, 0, 1), 41);
    EXPECT_EQ(wrapTarget(std::nullopt, 320, 1), 41);
}

TEST(WrapTarget, StaysWithinItsRange) {
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double scale : {1e9, infinity, std::nan(""), -1.0, -1e-9}) {
        EXPECT_EQ(wrapTarget(1512, 0, scale), 16) << scale;
    }
    for (const double scale : {0.0, 1e-300, 0.1}) {
        EXPECT_EQ(wrapTarget(1512, 0, scale), 48) << scale;
    }
    EXPECT_EQ(wrapTarget(100, 320, 1), 16);
}

TEST(ContentBox, IsCentredInTheWidthThatTheInspectorLeaves) {
    EXPECT_EQ(contentBox({1512, 982}, 0), QRectF(166, 0, 1180, 982));
    EXPECT_EQ(contentBox({1512, 982}, 320), QRectF(6, 0, 1180, 982));
    EXPECT_EQ(contentBox({1440, 900}, 320), QRectF(0, 0, 1120, 900));
    EXPECT_EQ(contentBox({3840, 2160}, 0), QRectF(1330, 0, 1180, 2160));
    EXPECT_EQ(columnWidth(contentBox({1512, 982}, 0)), 1000);
    EXPECT_GT(columnWidth(contentBox({200, 100}, 320)), 0);
}

TEST(Column, StacksItsElements) {
    const Column column =
        stackColumn({{40, 80}, {{600, 50}, {500, 50}}, {200, 16}}, 1, 1, Leading::Left);
    EXPECT_EQ(column.mark, QRectF(-20, 0, 40, 80));
    EXPECT_EQ(column.lines.at(0), QRectF(-300, 110, 600, 50));
    EXPECT_EQ(column.lines.at(1), QRectF(-300, 172, 500, 50)); // leading-aligned
    EXPECT_EQ(column.rule, QRectF(-28, 268, 56, 1));
    EXPECT_EQ(column.author, QRectF(-100, 291, 200, 16));
    EXPECT_EQ(column.height, 307);
}

TEST(Column, ScalesItsSpacesButNotTheRule) {
    const Column column =
        stackColumn({{40, 80}, {{600, 50}, {500, 50}}, {200, 16}}, 1.5, 1.5, Leading::Right);
    EXPECT_EQ(column.lines.at(0).top(), 125);
    EXPECT_EQ(column.lines.at(1).top(), 193);
    EXPECT_EQ(column.lines.at(1).right(), 300);
    EXPECT_EQ(column.rule, QRectF(-28, 312, 56, 1));
    EXPECT_EQ(column.author.top(), 346);
}

TEST(Column, KeepsTheSpaceOfAnEmptyQuotation) {
    const Column column = stackColumn({{40, 80}, {}, {0, 16}}, 1, 1, Leading::Left);
    EXPECT_EQ(column.rule.top(), 80 + 30 + 46);
}

TEST(Column, ScalesLinesAndPaddingsApart) {
    const Column column =
        stackColumn({{40, 80}, {{600, 50}, {500, 50}}, {200, 16}}, 0.5, 2, Leading::Left);
    EXPECT_EQ(column.lines.at(0).top(), 80 + 60);
    EXPECT_EQ(column.lines.at(1).top(), 80 + 60 + 50 + 6);
    EXPECT_EQ(column.rule.top(), 246 + 92);
    EXPECT_EQ(column.author.top(), 246 + 92 + 1 + 44);
}

TEST(ColumnPlace, CentresAColumnThatFits) {
    const ColumnPlace place = placeColumn(500, 982, 53, 927);
    EXPECT_EQ(place.top, 241);
    EXPECT_FALSE(place.overflows);

    const double room = 2 * (927 - 16 - 491);
    EXPECT_EQ(columnRoom(982, 53, 927), room);
    EXPECT_FALSE(placeColumn(room, 982, 53, 927).overflows);
    EXPECT_TRUE(placeColumn(room + 1, 982, 53, 927).overflows);
}

TEST(ColumnPlace, BeginsAColumnThatDoesNotFitBelowTheHeader) {
    const ColumnPlace place = placeColumn(20000, 982, 53, 927);
    EXPECT_TRUE(place.overflows);
    EXPECT_EQ(place.top, 69);
    EXPECT_EQ(place.bottom, 911);
}

TEST(ColumnPlace, SurvivesAViewWithoutRoom) {
    EXPECT_TRUE(placeColumn(500, 40, 53, -15).overflows);
}

TEST(SurroundingScale, IsTheWishedOneAboveSmallQuotations) {
    EXPECT_EQ(surroundingScale(1.6, 70.4), 1.6);
    EXPECT_EQ(surroundingScale(1.6, 24), 1.6);
    EXPECT_EQ(surroundingScale(1.6, 12), 0.8);
    EXPECT_DOUBLE_EQ(surroundingScale(0.5, 22), 0.5); // as wished
    EXPECT_DOUBLE_EQ(surroundingScale(0.5, 11), 0.25);
}
