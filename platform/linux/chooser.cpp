// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/chooser.h"

#include "platform/linux/autostart.h"
#include "platform/linux/dbus/busnotifications.h"
#include "platform/linux/dbus/bustoolkitguard.h"
#include "platform/linux/dbus/portallogin.h"
#include "platform/linux/dbus/portals.h"
#include "platform/linux/desktopparts.h"
#include "platform/linux/wayland/waylandconnection.h"
#include "platform/linux/wayland/waylandparts.h"
#include "platform/linux/windowsystem.h"
#include "platform/linux/x11/x11connection.h"
#include "platform/linux/x11/x11parts.h"
#include "platform/null/nullplatform.h"

#include <QFile>
#include <QStandardPaths>

#include <utility>

#include <malloc.h>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

// Qt draws nothing on a screen with a palette of colours.
constexpr int leastDepth = 15; // bits of a pixel

// Without an address libdbus would start a bus of its own, which no other program uses
// and which outlives this one. Set the usual address instead; a bus may appear there
// later.
void avoidStartingABus() {
    constexpr const char* address = "DBUS_SESSION_BUS_ADDRESS";
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (qEnvironmentVariableIsEmpty(address) && !folder.isEmpty()) {
        qputenv(address, "unix:path=" + QFile::encodeName(folder) + "/bus");
    }
}

// Gives large blocks, mostly pictures, pages of their own, which are unmapped when the
// block is freed. By default the threshold rises with every freed block, and the arenas
// of threads keep smaller blocks.
void unmapLargeBlocks() {
    constexpr int threshold = 1 << 20; // bytes
    mallopt(M_MMAP_THRESHOLD, threshold);
}

// Whether the program sees services only through portals.
bool isSandboxed() {
    return QFile::exists(u"/.flatpak-info"_s);
}

} // namespace

WindowSystem chooseWindowSystem() {
    avoidStartingABus();
    const wayland::Session session = wayland::probeSession();
    const WindowSystemChoice choice =
        chooseFor({.forced = qgetenv("MORROWLEAF_PLATFORM"),
                   .qtPlatform = qgetenv("QT_QPA_PLATFORM"),
                   .hasWayland = session.isReachable,
                   .hasLayerShell = session.hasLayerShell,
                   .hasDisplay = !qEnvironmentVariableIsEmpty("DISPLAY")});
    if (choice.plugin != nullptr) {
        qputenv("QT_QPA_PLATFORM", choice.plugin);
    }
    if (choice.system == WindowSystem::Layer) {
        // Makes Qt create a surface without a role for a window that asks for it.
        qputenv("QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT", "1");
    }
    return choice.system;
}

std::optional<QString> findObstacle(WindowSystem system) {
    const auto noDisplay = u"There is no display to show anything on."_s;
    switch (system) {
    case WindowSystem::X11:
    case WindowSystem::Xwayland: {
        const int depth = x11::screenDepth();
        if (depth == 0) {
            return noDisplay;
        }
        if (depth < leastDepth) {
            return u"The display has too few colours: it needs %1 bits, and has %2."_s
                .arg(leastDepth)
                .arg(depth);
        }
        break;
    }
    case WindowSystem::Layer:
    case WindowSystem::Wayland:
        if (!wayland::probeSession().isReachable) {
            return noDisplay;
        }
        break;
    case WindowSystem::Null:
        break;
    }
    return std::nullopt;
}

std::unique_ptr<SingleInstance> makeInstance(WindowSystem system) {
    return system == WindowSystem::Null ? makeNullInstance() : makeDesktopInstance();
}

std::unique_ptr<ToolkitGuard> makeToolkitGuard() {
    return std::make_unique<BusToolkitGuard>();
}

bool isWaitingForAnswer() {
    return BusLink::isAnyConnecting();
}

Platform makePlatform(WindowSystem system) {
    Platform platform = makeNullPlatform();
    if (system == WindowSystem::Null) {
        return platform;
    }
    unmapLargeBlocks();
    const bool x11 = system == WindowSystem::X11 || system == WindowSystem::Xwayland;
    const auto session = std::make_shared<BusLink>(QDBusConnection::SessionBus);
    platform.wishes = makeDesktopWishes(session, x11);
    platform.fileChooser = std::make_unique<PortalFileChooser>(session);
    platform.notifications = std::make_unique<BusNotifications>(session, isSandboxed());
    platform.sessionEvents = makeDesktopSession(session);
    platform.trayHost = makeDesktopTray(session, x11);
    platform.loginItem = makeLoginItem();
    if (isSandboxed()) {
        platform.loginItem =
            std::make_unique<PortalLoginItem>(session, std::move(platform.loginItem));
    }
    platform.requests = makeDesktopRequests(session);
    if (x11) {
        platform.mainScreen = makeX11MainScreen();
        platform.overlays = makeX11Overlays(system == WindowSystem::Xwayland);
        // The root window of Xwayland is black: the desktop is not drawn there.
        if (system == WindowSystem::X11) {
            platform.desktopPicture = makeX11Picture();
        }
    } else if (system == WindowSystem::Layer) {
        platform.overlays = makeLayerOverlays();
        platform.desktopPicture = makeScreencopy();
    } else {
        platform.overlays = makeWaylandOverlays();
    }
    platform.overlays =
        makeOverlaysOverShell(std::move(platform.overlays), session, *platform.requests);
    return platform;
}

std::unique_ptr<LoginItem> makeLoginItem() {
    return makeAutostart(autostartPlaces());
}

} // namespace morrowleaf
