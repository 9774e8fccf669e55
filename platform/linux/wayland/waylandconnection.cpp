// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/wayland/waylandconnection.h"

#include <QGuiApplication>
#include <qpa/qplatformnativeinterface.h>
#include <qpa/qwindowsysteminterface.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace morrowleaf::wayland {

namespace {

template <typename T>
void bindIf(T*& object, wl_registry* registry, std::uint32_t name, const char* offered,
            const wl_interface& wanted, std::uint32_t version) {
    if (object == nullptr && std::strcmp(offered, wanted.name) == 0) {
        object = static_cast<T*>(wl_registry_bind(registry, name, &wanted, version));
    }
}

void onGlobal(void* data, wl_registry* registry, std::uint32_t name, const char* offered,
              std::uint32_t version) {
    auto& globals = *static_cast<Globals*>(data);
    // Needs version 2 to change the layer of a surface.
    constexpr std::uint32_t layerVersion = 4;
    bindIf(globals.layerShell, registry, name, offered, zwlr_layer_shell_v1_interface,
           std::min(version, layerVersion));
    bindIf(globals.screencopy, registry, name, offered, zwlr_screencopy_manager_v1_interface, 1);
    bindIf(globals.blur, registry, name, offered, org_kde_kwin_blur_manager_interface, 1);
    bindIf(globals.shm, registry, name, offered, wl_shm_interface, 1);
}

void onGlobalRemoved(void* /*data*/, wl_registry* /*registry*/, std::uint32_t /*name*/) {}

constexpr wl_registry_listener listener{onGlobal, onGlobalRemoved};

} // namespace

Globals bindGlobals(wl_display* display, wl_event_queue* queue) {
    Globals globals;
    auto* wrapper = static_cast<wl_display*>(wl_proxy_create_wrapper(display));
    if (queue != nullptr) {
        wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(wrapper), queue);
    }
    auto* registry = wl_display_get_registry(wrapper);
    wl_proxy_wrapper_destroy(wrapper);
    wl_registry_add_listener(registry, &listener, &globals);
    if (queue != nullptr) {
        wl_display_roundtrip_queue(display, queue);
    } else {
        wl_display_roundtrip(display);
    }
    wl_registry_destroy(registry);
    return globals;
}

Session probeSession() {
    wl_display* display = wl_display_connect(nullptr);
    if (display == nullptr) {
        return {};
    }
    const Session session{.isReachable = true,
                          .hasLayerShell = bindGlobals(display, nullptr).layerShell != nullptr};
    wl_display_disconnect(display);
    return session;
}

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
