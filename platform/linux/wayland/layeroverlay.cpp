// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/wayland/waylandparts.h"

#include "platform/linux/wayland/waylandconnection.h"

#include <QElapsedTimer>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>

namespace morrowleaf {

namespace {

constexpr std::uint32_t allEdges =
    ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_BOTTOM |
    ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT | ZWLR_LAYER_SURFACE_V1_ANCHOR_RIGHT;
constexpr std::int32_t overPanels = -1;    // exclusive zone
constexpr std::uint32_t exclusive = 1;     // keyboard interactivity
constexpr int focusPatience = 150;         // milliseconds; Qt may activate another window meanwhile
constexpr qint64 configurePatience = 2000; // milliseconds

class LayerOverlay final : public OverlayWindow {
public:
    LayerOverlay(QWidget& window, QScreen& screen, const wayland::Globals& globals)
        : window_(window)
        , globals_(globals) {
        window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
        window.setAttribute(Qt::WA_TranslucentBackground);
        window.setScreen(&screen);
        window.setGeometry(screen.geometry());
        focus_.setSingleShot(true);
        focus_.setInterval(focusPatience);
        connect(&focus_, &QTimer::timeout, this, [this] {
            if (window_.isVisible() && layer_ != nullptr) {
                wayland::takeFocus(*window_.windowHandle());
            }
        });
        createSurface();
    }

    ~LayerOverlay() override { orderOut(); }

    SeeThrough seeThrough() const override {
        return globals_.blur != nullptr ? SeeThrough::Blurred : SeeThrough::Plain;
    }

    void orderFront() override {
        if (layer_ == nullptr) {
            createSurface();
        }
        if (!configured_) {
            // Attaching a buffer to an unconfigured surface is a protocol error.
            emit lost();
            return;
        }
        window_.show();
        window_.raise();
        wayland::takeFocus(*window_.windowHandle());
        focus_.start();
    }

    void orderOut() override {
        focus_.stop();
        destroySurface();
        window_.hide();
        if (auto* handle = window_.windowHandle()) {
            // A surface keeps its role for ever, so the next showing needs a new surface.
            handle->destroy();
        }
    }

    void setLevel(WindowLevel level) override {
        if (layer_ == nullptr || zwlr_layer_surface_v1_get_version(layer_) <
                                     ZWLR_LAYER_SURFACE_V1_SET_LAYER_SINCE_VERSION) {
            return;
        }
        if (level == WindowLevel::ScreenSaver) {
            // KWin 5.27 would keep the surface in the layer below.
            // The screen stays the same, even if the dialog was on another one.
            output_ = wayland::outputOf(*window_.screen());
            orderOut();
            orderFront();
            output_ = nullptr;
            return;
        }
        zwlr_layer_surface_v1_set_layer(layer_, ZWLR_LAYER_SHELL_V1_LAYER_BOTTOM);
        zwlr_layer_surface_v1_set_keyboard_interactivity(layer_, 0);
        wl_surface_commit(wayland::surfaceOf(*window_.windowHandle()));
        wl_display_flush(wayland::display());
    }

    // A lock screen is above all layers and receives the keyboard anyway.
    void releaseInput() override {}

    // A surface receives no input from before it was mapped.
    quint32 orderedFrontAt() const override { return 0; }

private:
    void createSurface() {
        window_.winId();
        QWindow& handle = *window_.windowHandle();
        wl_surface* surface = wayland::surfaceOf(handle);
        if (surface == nullptr) {
            handle.destroy();
            handle.create();
            surface = wayland::surfaceOf(handle);
        }
        if (surface == nullptr) {
            return;
        }
        // Without an output the compositor uses the focused one.
        layer_ = zwlr_layer_shell_v1_get_layer_surface(
            globals_.layerShell, surface, output_, ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, "morrowleaf");
        // Events are dispatched on the default queue, as Qt's own are.
        wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(layer_), nullptr);
        static constexpr zwlr_layer_surface_v1_listener listener{onConfigure, onClosed};
        zwlr_layer_surface_v1_add_listener(layer_, &listener, this);
        zwlr_layer_surface_v1_set_anchor(layer_, allEdges);
        zwlr_layer_surface_v1_set_size(layer_, 0, 0);
        zwlr_layer_surface_v1_set_exclusive_zone(layer_, overPanels);
        zwlr_layer_surface_v1_set_keyboard_interactivity(layer_, exclusive);
        if (globals_.blur != nullptr) {
            blur_ = org_kde_kwin_blur_manager_create(globals_.blur, surface);
            org_kde_kwin_blur_set_region(blur_, nullptr);
            org_kde_kwin_blur_commit(blur_);
        }
        wl_surface_commit(surface);
        // Wait for the size before drawing anything. Without any output the compositor
        // closes the surface or sends no event.
        QElapsedTimer waiting;
        waiting.start();
        while (!configured_ && !closed_ && waiting.elapsed() < configurePatience &&
               wl_display_roundtrip(wayland::display()) >= 0) {
        }
    }

    void destroySurface() {
        if (blur_ != nullptr) {
            org_kde_kwin_blur_release(blur_);
            blur_ = nullptr;
        }
        if (layer_ != nullptr) {
            zwlr_layer_surface_v1_destroy(layer_);
            layer_ = nullptr;
        }
        configured_ = false;
        closed_ = false;
    }

    static void onConfigure(void* data, zwlr_layer_surface_v1* layer, std::uint32_t serial,
                            std::uint32_t width, std::uint32_t height) {
        auto& self = *static_cast<LayerOverlay*>(data);
        zwlr_layer_surface_v1_ack_configure(layer, serial);
        const QSize size(static_cast<int>(width), static_cast<int>(height));
        if (!self.configured_) {
            self.configured_ = true;
            self.window_.resize(size);
            return;
        }
        QMetaObject::invokeMethod(
            &self.window_, [window = &self.window_, size] { window->resize(size); },
            Qt::QueuedConnection);
    }

    static void onClosed(void* data, zwlr_layer_surface_v1* /*layer*/) {
        auto& self = *static_cast<LayerOverlay*>(data);
        self.closed_ = true;
        emit self.lost();
    }

    QWidget& window_;
    wayland::Globals globals_;
    wl_output* output_ = nullptr; // for the next surface
    zwlr_layer_surface_v1* layer_ = nullptr;
    org_kde_kwin_blur* blur_ = nullptr;
    bool configured_ = false;
    bool closed_ = false;
    QTimer focus_;
};

class LayerOverlays final : public OverlayMaker {
public:
    LayerOverlays()
        : globals_(wayland::bindGlobals(wayland::display(), nullptr)) {}

    std::unique_ptr<OverlayWindow> make(QWidget& window, QScreen& screen,
                                        const OverlaySetup& /*setup*/) override {
        return std::make_unique<LayerOverlay>(window, screen, globals_);
    }

private:
    wayland::Globals globals_;
};

} // namespace

std::unique_ptr<OverlayMaker> makeLayerOverlays() {
    return std::make_unique<LayerOverlays>();
}

} // namespace morrowleaf
