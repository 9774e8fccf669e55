#include "platform/chooser.h"

#include "platform/linux/desktopbeeper.h"
#include "platform/linux/x11mainscreen.h"
#include "platform/linux/x11overlay.h"
#include "platform/linux/x11picture.h"
#include "platform/null/nullplatform.h"

#include <QByteArray>

#include <optional>

namespace morrowleaf {

namespace {

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

} // namespace

WindowSystem chooseWindowSystem() {
    return forced().value_or(WindowSystem::X11);
}

Platform makePlatform(WindowSystem system) {
    Platform platform = makeNullPlatform();
    if (system == WindowSystem::Null) {
        return platform;
    }
    platform.beeper = makeDesktopBeeper();
    if (system == WindowSystem::X11 || system == WindowSystem::Xwayland) {
        platform.mainScreen = makeX11MainScreen();
        platform.overlays = makeX11Overlays(system == WindowSystem::Xwayland);
        platform.desktopPicture = makeX11Picture();
    }
    return platform;
}

std::unique_ptr<LoginItem> makeLoginItem() {
    return makeNullPlatform().loginItem;
}

} // namespace morrowleaf
