// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

namespace morrowleaf {

// The ways to show a window above everything else.
enum class WindowSystem : int {
    Null,     // the null backend; the desktop is left alone
    X11,      // a window outside the window manager's control
    Layer,    // a Wayland layer surface
    Xwayland, // a managed full-screen window on Xwayland
    Wayland,  // an opaque full-screen window of the xdg shell
};

// The facts that decide the window system.
struct SessionFacts {
    QByteArray forced;          // MORROWLEAF_PLATFORM
    QByteArray qtPlatform;      // QT_QPA_PLATFORM
    bool hasWayland = false;    // a compositor is reachable
    bool hasLayerShell = false; // the compositor offers zwlr_layer_shell_v1
    bool hasDisplay = false;    // DISPLAY names an X server
};

struct WindowSystemChoice {
    WindowSystem system = WindowSystem::Null;
    const char* plugin = nullptr; // Qt's platform; null leaves QT_QPA_PLATFORM unchanged
};

// Uses `forced` if it is "null", "x11", "wayland" or "xwayland", else the best way that
// the session offers. Keeps a Qt platform that the user has set and chooses a way that
// works with it.
WindowSystemChoice chooseFor(const SessionFacts& facts);

} // namespace morrowleaf
