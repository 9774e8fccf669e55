// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

namespace morrowleaf {

// The ways in which a window can be shown above everything.
enum class WindowSystem : int {
    Null,     // the null backend; the desktop is left alone
    X11,      // a window outside the window manager's control
    Layer,    // a Wayland layer surface
    Xwayland, // a managed full-screen window on Xwayland
    Wayland,  // an opaque full-screen window of the xdg shell
};

// What the choice depends on.
struct SessionFacts {
    QByteArray forced;          // MORROWLEAF_PLATFORM
    QByteArray qtPlatform;      // QT_QPA_PLATFORM
    bool hasWayland = false;    // a compositor can be reached
    bool hasLayerShell = false; // it offers zwlr_layer_shell_v1
    bool hasDisplay = false;    // DISPLAY names an X server
};

struct WindowSystemChoice {
    WindowSystem system = WindowSystem::Null;
    const char* plugin = nullptr; // of Qt; null leaves QT_QPA_PLATFORM as it is
};

// `forced` decides where it is one of "null", "x11", "wayland" and "xwayland";
// otherwise the best way that the session offers. A Qt platform that the user
// has set is kept, and the way follows it.
WindowSystemChoice chooseFor(const SessionFacts& facts);

} // namespace morrowleaf
