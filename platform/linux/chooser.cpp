// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/chooser.h"

#include "platform/linux/autostart.h"
#include "platform/linux/dbus/portalcolorscheme.h"
#include "platform/linux/dbus/portalfilechooser.h"
#include "platform/linux/desktopparts.h"
#include "platform/linux/wayland/waylandconnection.h"
#include "platform/linux/wayland/waylandparts.h"
#include "platform/linux/x11/x11connection.h"
#include "platform/linux/x11/x11parts.h"
#include "platform/null/nullplatform.h"

#include <QByteArray>
#include <QFile>
#include <QStandardPaths>

#include <malloc.h>
#include <optional>

namespace morrowleaf {

// The ways in which a window can come to stand above everything.
enum class WindowSystem : int {
    Null,     // nothing of the desktop is used
    X11,      // a window that no window manager touches
    Layer,    // a Wayland layer surface
    Xwayland, // a managed full-screen window of Xwayland
    Wayland,  // an opaque full-screen window of the compositor
};

namespace {

// What the environment variable MORROWLEAF_PLATFORM asks for, if anything.
std::optional<WindowSystem> forced() {
    const QByteArray name = qgetenv("MORROWLEAF_PLATFORM");
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

// What the session offers, best first.
WindowSystem offered() {
    const wayland::Session session = wayland::probeSession();
    if (!session.isReachable) {
        return WindowSystem::X11;
    }
    if (session.hasLayerShell) {
        return WindowSystem::Layer;
    }
    return qEnvironmentVariableIsEmpty("DISPLAY") ? WindowSystem::Wayland : WindowSystem::Xwayland;
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

// Without an address the bus library would start a bus, which nobody else uses
// and which outlives us; where one is or may come is known.
void stayOnTheBusThatIsThere() {
    constexpr const char* address = "DBUS_SESSION_BUS_ADDRESS";
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (qEnvironmentVariableIsEmpty(address) && !folder.isEmpty()) {
        qputenv(address, "unix:path=" + QFile::encodeName(folder) + "/bus");
    }
}

// Pictures get pages of their own, which go back the moment they are freed: by
// default the limit rises with what is freed, and the arenas of threads keep it.
constexpr int ownPagesFrom = 1 << 20; // bytes

} // namespace

WindowSystem chooseWindowSystem() {
    stayOnTheBusThatIsThere();
    const QByteArray wanted = qgetenv("QT_QPA_PLATFORM");
    const WindowSystem system = forced().value_or(offered());
    const char* plugin = pluginFor(system);
    if (plugin == nullptr) {
        return system;
    }
    if (!wanted.isEmpty() && !wanted.startsWith(plugin)) {
        // The user knows better than we what shall draw the windows.
        if (wanted.startsWith("xcb")) {
            return system == WindowSystem::X11 ? system : WindowSystem::Xwayland;
        }
        return wanted.startsWith("wayland") ? WindowSystem::Wayland : WindowSystem::Null;
    }
    qputenv("QT_QPA_PLATFORM", plugin);
    if (system == WindowSystem::Layer) {
        // Windows that ask for it get no role of their own, and can be given one.
        qputenv("QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT", "1");
    }
    return system;
}

bool isReachable(WindowSystem system) {
    switch (system) {
    case WindowSystem::X11:
    case WindowSystem::Xwayland:
        return x11::serverAnswers();
    case WindowSystem::Layer:
    case WindowSystem::Wayland:
        return wayland::probeSession().isReachable;
    case WindowSystem::Null:
        break;
    }
    return true;
}

Platform makePlatform(WindowSystem system) {
    Platform platform = makeNullPlatform();
    if (system == WindowSystem::Null) {
        return platform;
    }
    mallopt(M_MMAP_THRESHOLD, ownPagesFrom);
    const bool x11 = system == WindowSystem::X11 || system == WindowSystem::Xwayland;
    platform.colorScheme = std::make_unique<PortalColorScheme>();
    platform.fileChooser = std::make_unique<PortalFileChooser>();
    platform.sessionEvents = makeDesktopSession();
    platform.trayHost = makeDesktopTray(x11);
    platform.loginItem = makeLoginItem();
    platform.instance = makeDesktopInstance();
    if (x11) {
        platform.mainScreen = makeX11MainScreen();
        platform.overlays = makeX11Overlays(system == WindowSystem::Xwayland);
        platform.desktopPicture = makeX11Picture();
    } else if (system == WindowSystem::Layer) {
        platform.overlays = makeLayerOverlays();
        platform.desktopPicture = makeScreencopy();
    } else {
        platform.overlays = makeWaylandOverlays();
    }
    return platform;
}

std::unique_ptr<LoginItem> makeLoginItem() {
    return makeAutostart(autostartPlaces());
}

} // namespace morrowleaf
