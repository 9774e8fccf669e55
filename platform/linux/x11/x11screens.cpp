// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/x11/x11parts.h"

#include "platform/linux/x11/x11connection.h"
#include "platform/linux/x11/x11monitors.h"

#include <QCursor>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

namespace morrowleaf {

namespace {

// The geometry of a screen in pixels of the X server. Qt scales sizes, but not positions.
QRect nativeGeometry(const QScreen& screen) {
    const QRect r = screen.geometry();
    return {r.topLeft(), (QSizeF(r.size()) * screen.devicePixelRatio()).toSize()};
}

std::optional<QRect> windowGeometry(xcb_window_t window) {
    auto* c = x11::connection();
    const x11::Reply<xcb_get_geometry_reply_t> size(
        xcb_get_geometry_reply(c, xcb_get_geometry(c, window), nullptr));
    if (!size || size->root == window) {
        return std::nullopt;
    }
    const x11::Reply<xcb_translate_coordinates_reply_t> at(xcb_translate_coordinates_reply(
        c, xcb_translate_coordinates(c, window, size->root, 0, 0), nullptr));
    if (!at) {
        return std::nullopt;
    }
    return QRect(at->dst_x, at->dst_y, size->width, size->height);
}

std::optional<QRect> focusedWindow() {
    const auto active = x11::property(x11::rootWindow(), "_NET_ACTIVE_WINDOW");
    if (active && !active->empty() && active->front() != XCB_WINDOW_NONE) {
        if (const auto geometry = windowGeometry(active->front())) {
            return geometry;
        }
    }
    const xcb_window_t focus = x11::inputFocus();
    if (focus > XCB_INPUT_FOCUS_POINTER_ROOT) {
        return windowGeometry(focus);
    }
    return std::nullopt;
}

QScreen* largestOverlap(const QRect& window) {
    QScreen* best = nullptr;
    qint64 most = 0;
    const auto screens = QGuiApplication::screens();
    for (QScreen* screen : screens) {
        const QRect common = nativeGeometry(*screen).intersected(window);
        const qint64 area = qint64(common.width()) * common.height();
        if (!common.isEmpty() && area > most) {
            most = area;
            best = screen;
        }
    }
    return best;
}

class X11MainScreen final : public MainScreen {
public:
    QScreen* current() const override {
        if (!X11Monitors::isAnyOn()) {
            return nullptr;
        }
        QScreen* screen = nullptr;
        if (const auto window = focusedWindow()) {
            screen = largestOverlap(*window);
        }
        if (screen == nullptr) {
            screen = QGuiApplication::screenAt(QCursor::pos());
        }
        if (screen == nullptr) {
            screen = QGuiApplication::primaryScreen();
        }
        // With all monitors off, Qt keeps a screen with an empty geometry.
        return screen != nullptr && !screen->geometry().isEmpty() ? screen : nullptr;
    }
};

class X11Picture final : public DesktopPicture {
public:
    QImage capture(QScreen& screen) override {
        QImage picture = screen.grabWindow(0).toImage();
        if (!picture.isNull() && picture.format() != QImage::Format_RGB32) {
            picture.convertTo(QImage::Format_RGB32);
        }
        return picture;
    }
};

} // namespace

std::unique_ptr<DesktopPicture> makeX11Picture() {
    return std::make_unique<X11Picture>();
}

std::unique_ptr<MainScreen> makeX11MainScreen() {
    return std::make_unique<X11MainScreen>();
}

} // namespace morrowleaf
