// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/wayland/waylandnative.h"

#include <QGuiApplication>
#include <qpa/qplatformnativeinterface.h>
#include <qpa/qwindowsysteminterface.h>

namespace morrowleaf::wayland {

wl_display* display() {
    auto* native = QGuiApplication::platformNativeInterface();
    return native == nullptr
               ? nullptr
               : static_cast<wl_display*>(native->nativeResourceForIntegration("wl_display"));
}

wl_surface* surfaceOf(QWindow& window) {
    auto* native = QGuiApplication::platformNativeInterface();
    return static_cast<wl_surface*>(native->nativeResourceForWindow("surface", &window));
}

wl_output* outputOf(QScreen& screen) {
    auto* native = QGuiApplication::platformNativeInterface();
    return static_cast<wl_output*>(native->nativeResourceForScreen("output", &screen));
}

void takeFocus(QWindow& window) {
    QWindowSystemInterface::handleWindowActivated(&window, Qt::ActiveWindowFocusReason);
}

} // namespace morrowleaf::wayland
