// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/windowsystem.h"

#include <gtest/gtest.h>

#include <ostream>

namespace morrowleaf {
namespace {

struct Case {
    const char* name;
    SessionFacts facts;
    WindowSystem system;
    QByteArray plugin; // empty if the environment stays unchanged
};

// GoogleTest uses this as the name of a parameter.
void PrintTo(const Case& one, std::ostream* to) { // NOLINT: the name is GoogleTest's
    *to << one.name;
}

class WindowSystemTest : public testing::TestWithParam<Case> {};

TEST_P(WindowSystemTest, IsChosen) {
    const WindowSystemChoice choice = chooseFor(GetParam().facts);
    EXPECT_EQ(choice.system, GetParam().system);
    EXPECT_EQ(QByteArray(choice.plugin), GetParam().plugin);
}

const SessionFacts x11{.forced = {}, .qtPlatform = {}, .hasDisplay = true};
const SessionFacts layers{
    .forced = {}, .qtPlatform = {}, .hasWayland = true, .hasLayerShell = true, .hasDisplay = true};
const SessionFacts noLayers{.forced = {}, .qtPlatform = {}, .hasWayland = true, .hasDisplay = true};
const SessionFacts onlyWayland{.forced = {}, .qtPlatform = {}, .hasWayland = true};

SessionFacts forced(SessionFacts facts, const char* name) {
    facts.forced = name;
    return facts;
}
SessionFacts withPlatform(SessionFacts facts, const char* name) {
    facts.qtPlatform = name;
    return facts;
}

INSTANTIATE_TEST_SUITE_P(Sessions, WindowSystemTest,
                         testing::Values(Case{"X11", x11, WindowSystem::X11, "xcb"},
                                         Case{"Nothing", {}, WindowSystem::X11, "xcb"},
                                         Case{"LayerShell", layers, WindowSystem::Layer, "wayland"},
                                         Case{"XwaylandWithoutLayerShell", noLayers,
                                              WindowSystem::Xwayland, "xcb"},
                                         Case{"NeitherLayerShellNorXwayland", onlyWayland,
                                              WindowSystem::Wayland, "wayland"}),
                         [](const auto& info) { return info.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Forced, WindowSystemTest,
    testing::Values(
        Case{"NullOnX11", forced(x11, "null"), WindowSystem::Null, {}},
        Case{"NullOnWayland", forced(layers, "null"), WindowSystem::Null, {}},
        Case{"X11OnWayland", forced(layers, "x11"), WindowSystem::X11, "xcb"},
        Case{"XwaylandOnWayland", forced(layers, "xwayland"), WindowSystem::Xwayland, "xcb"},
        Case{"LayerOnX11", forced(x11, "wayland"), WindowSystem::Layer, "wayland"},
        Case{"AnUnknownNameIsIgnored", forced(layers, "quartz"), WindowSystem::Layer, "wayland"}),
    [](const auto& info) { return info.param.name; });

INSTANTIATE_TEST_SUITE_P(
    QtPlatform, WindowSystemTest,
    testing::Values(
        Case{"XcbOnX11", withPlatform(x11, "xcb"), WindowSystem::X11, "xcb"},
        Case{"XcbOnWayland", withPlatform(layers, "xcb"), WindowSystem::Xwayland, {}},
        Case{"WaylandWithLayerShell", withPlatform(layers, "wayland"), WindowSystem::Layer,
             "wayland"},
        Case{"WaylandWithoutLayerShell",
             withPlatform(noLayers, "wayland"),
             WindowSystem::Wayland,
             {}},
        Case{"WaylandOnX11", withPlatform(x11, "wayland-egl"), WindowSystem::Wayland, {}},
        Case{"OffscreenOnWayland", withPlatform(layers, "offscreen"), WindowSystem::Null, {}},
        Case{"OffscreenOnX11", withPlatform(x11, "offscreen"), WindowSystem::Null, {}}),
    [](const auto& info) { return info.param.name; });

} // namespace
} // namespace morrowleaf
