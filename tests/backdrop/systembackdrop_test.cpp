// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/systembackdrop.h"

#include "backdrop/backdrop.h"
#include "backdrop/glass.h"

#include <gtest/gtest.h>

namespace morrowleaf {
namespace {

using Kind = SystemBackdrop::Kind;

BackdropState stateWith(DesktopView::Kind kind, double transparency) {
    BackdropState state;
    state.palette = Palette::all()[0];
    state.transparency = transparency;
    state.desktop.kind = kind;
    return state;
}

TEST(SystemBackdrop, IsNothingWhereTheSystemDrawsNothing) {
    for (const auto kind : {DesktopView::Kind::Nothing, DesktopView::Kind::Plain,
                            DesktopView::Kind::LiveBlur, DesktopView::Kind::Captured}) {
        EXPECT_EQ(systemBackdropFor(stateWith(kind, 0.5)), SystemBackdrop());
    }
}

TEST(SystemBackdrop, BeginsAboveAHundredthAndEndsAtOne) {
    const auto kindAt = [](double transparency) {
        return systemBackdropFor(stateWith(DesktopView::Kind::SystemBlur, transparency)).kind;
    };
    EXPECT_EQ(kindAt(0), Kind::None);
    EXPECT_EQ(kindAt(0.01), Kind::None);
    EXPECT_EQ(kindAt(0.02), Kind::Blur);
    EXPECT_EQ(kindAt(0.99), Kind::Blur);
    EXPECT_EQ(kindAt(1), Kind::None);
}

TEST(SystemBackdrop, HasTheTintAndTheOpacityOfItsTransparency) {
    const BackdropState state = stateWith(DesktopView::Kind::SystemBlur, 0.8);
    const SystemBackdrop backdrop = systemBackdropFor(state);
    EXPECT_NEAR(backdrop.opacity, 0.8, 1e-9);
    EXPECT_NEAR(backdrop.tint.alphaF(), 0.2 * 0.5 + 0.06, 1e-4);
    EXPECT_EQ(backdrop.tint.rgb(), state.palette.colors[4].rgb());
}

TEST(SystemBackdrop, IsGlassOnlyIfTheUserAndTheSystemWantIt) {
    BackdropState state = stateWith(DesktopView::Kind::SystemGlass, 0.6);
    EXPECT_EQ(systemBackdropFor(state).kind, Kind::Glass);
    state.transparency = 0.61;
    EXPECT_EQ(systemBackdropFor(state).kind, Kind::ClearGlass);
    state.liquidGlass = false;
    EXPECT_EQ(systemBackdropFor(state).kind, Kind::Blur);
    EXPECT_EQ(systemBackdropFor(stateWith(DesktopView::Kind::SystemBlur, 0.6)).kind, Kind::Blur);
}

TEST(SystemBackdrop, LeavesOnlyTheGroundToPaint) {
    for (const auto kind : {DesktopView::Kind::SystemBlur, DesktopView::Kind::SystemGlass}) {
        const Layers layers = layersOf(stateWith(kind, 0.3), false, false);
        EXPECT_NEAR(layers.ground, 0.7, 1e-9);
        EXPECT_EQ(layers.tint, 0);
        EXPECT_EQ(layers.glass, 0);
    }
}

} // namespace
} // namespace morrowleaf
