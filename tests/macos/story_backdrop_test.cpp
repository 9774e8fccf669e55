// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// What is behind the quotation on macOS.

#include "tests/macos/storyfixture.h"

namespace morrowleaf {
namespace {

std::vector<std::string> kindsBehind(void* view) {
    std::vector<std::string> kinds;
    for (const macfakes::Layer& layer : macfakes::layersBehind(view)) {
        kinds.push_back(layer.kind);
    }
    return kinds;
}

TEST_F(MacStory, AnOpaqueQuotationHasNothingBehindIt) {
    launch();
    settle();
    EXPECT_EQ(kindsBehind(view()), std::vector<std::string>{});
}

TEST_F(MacStory, TheDesktopIsBlurredBehindATransparentOne) {
    store.set(K::transparency, 0.8);
    store.set(K::palette, qint64{0});
    launch();
    settle();
    EXPECT_EQ(kindsBehind(view()), (std::vector<std::string>{"NSVisualEffectView", "NSBox"}));
    const macfakes::Layer tint = macfakes::layersBehind(view()).back();
    EXPECT_NEAR(tint.alpha, 0.2 * 0.5 + 0.06, 1e-4);
    EXPECT_NEAR(tint.opacity, 0.8, 1e-9);
    const QColor centre = Palette::all()[0].colors[4];
    EXPECT_NEAR(tint.red, centre.redF(), 1e-4);
    EXPECT_NEAR(tint.green, centre.greenF(), 1e-4);
    EXPECT_NEAR(tint.blue, centre.blueF(), 1e-4);
    store.set(K::transparency, 0.0);
    settle();
    EXPECT_EQ(kindsBehind(view()), std::vector<std::string>{});
}

TEST_F(MacStory, GlassTakesTheBlursPlaceWhereTheSystemHasIt) {
    setVersion(SystemVersion::WithGlass);
    store.set(K::transparency, 0.5);
    launch();
    settle();
    EXPECT_EQ(kindsBehind(view()), std::vector<std::string>{"NSGlassEffectView"});
    EXPECT_EQ(macfakes::layersBehind(view()).back().style, 0);
    store.set(K::transparency, 0.7);
    settle();
    EXPECT_EQ(macfakes::layersBehind(view()).back().style, 1);
    store.set(K::liquidGlass, false);
    settle();
    EXPECT_EQ(kindsBehind(view()), (std::vector<std::string>{"NSVisualEffectView", "NSBox"}));
}

} // namespace
} // namespace morrowleaf
