// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/windowsystem.h"

#include <optional>

namespace morrowleaf {

namespace {

std::optional<WindowSystem> named(const QByteArray& name) {
    if (name == "null") {
        return WindowSystem::Null;
    }
    if (name == "x11") {
        return WindowSystem::X11;
    }
    if (name == "wayland") {
        return WindowSystem::Layer;
    }
    if (name == "xwayland") {
        return WindowSystem::Xwayland;
    }
    return std::nullopt;
}

WindowSystem bestOffered(const SessionFacts& facts) {
    if (!facts.hasWayland) {
        return WindowSystem::X11;
    }
    if (facts.hasLayerShell) {
        return WindowSystem::Layer;
    }
    return facts.hasDisplay ? WindowSystem::Xwayland : WindowSystem::Wayland;
}

const char* pluginFor(WindowSystem system) {
    switch (system) {
    case WindowSystem::X11:
    case WindowSystem::Xwayland:
        return "xcb";
    case WindowSystem::Layer:
    case WindowSystem::Wayland:
        return "wayland";
    case WindowSystem::Null:
        break;
    }
    return nullptr;
}

} // namespace

WindowSystemChoice chooseFor(const SessionFacts& facts) {
    const WindowSystem system = named(facts.forced).value_or(bestOffered(facts));
    const char* plugin = pluginFor(system);
    if (plugin == nullptr || facts.qtPlatform.isEmpty() || facts.qtPlatform.startsWith(plugin)) {
        return {.system = system, .plugin = plugin};
    }
    if (facts.qtPlatform.startsWith("xcb")) {
        return {.system = WindowSystem::Xwayland, .plugin = nullptr};
    }
    return {.system =
                facts.qtPlatform.startsWith("wayland") ? WindowSystem::Wayland : WindowSystem::Null,
            .plugin = nullptr};
}

} // namespace morrowleaf
