// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/x11/x11parts.h"

#include "platform/linux/x11/x11connection.h"
#include "platform/linux/x11/x11monitors.h"

#include <QAbstractNativeEventFilter>
#include <QCursor>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPixmap>
#include <QPointer>
#include <QScreen>

#include <algorithm>
#include <iterator>
#include <set>
#include <span>
#include <utility>

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

// The windows of other clients that no window manager manages and that cover the screen:
// lockers have such windows, and compositors one below everything.
std::set<xcb_window_t> coversOf(const QScreen& screen) {
    auto* c = x11::connection();
    const auto* setup = xcb_get_setup(c);
    const auto own = setup->resource_id_base & ~setup->resource_id_mask;
    const QRect whole = nativeGeometry(screen);
    std::set<xcb_window_t> covers;
    const x11::Reply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(c, xcb_query_tree(c, x11::rootWindow()), nullptr));
    if (!tree) {
        return covers;
    }
    const std::span windows(xcb_query_tree_children(tree.get()),
                            static_cast<std::size_t>(xcb_query_tree_children_length(tree.get())));
    for (const xcb_window_t window : windows) {
        if ((window & ~setup->resource_id_mask) == own) {
            continue;
        }
        const x11::Reply<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(c, xcb_get_window_attributes(c, window), nullptr));
        if (attributes && attributes->override_redirect != 0 &&
            attributes->map_state == XCB_MAP_STATE_VIEWABLE &&
            attributes->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT &&
            windowGeometry(window).value_or(QRect()).contains(whole)) {
            covers.insert(window);
        }
    }
    return covers;
}

// The covers that no unlocking has removed, as long as they are on the screen: another window
// may have the same id later.
class LastingCovers : public QAbstractNativeEventFilter {
public:
    LastingCovers() { qGuiApp->installNativeEventFilter(this); }
    ~LastingCovers() override { qGuiApp->removeNativeEventFilter(this); }

    bool contain(const std::set<xcb_window_t>& covers) const {
        return std::ranges::includes(windows_, covers);
    }

    void add(const QScreen& screen) {
        const auto covers = coversOf(screen);
        for (const xcb_window_t window : covers) {
            x11::listenTo(window, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
        }
        // Some may have gone before anybody listened.
        std::ranges::set_intersection(covers, coversOf(screen),
                                      std::inserter(windows_, windows_.end()));
    }

    bool nativeEventFilter(const QByteArray& /*type*/, void* message,
                           qintptr* /*result*/) override {
        const auto* event = static_cast<const xcb_generic_event_t*>(message);
        const auto type = event->response_type & 0x7F;
        if (type == XCB_UNMAP_NOTIFY) {
            windows_.erase(reinterpret_cast<const xcb_unmap_notify_event_t*>(event)->window);
        } else if (type == XCB_DESTROY_NOTIFY) {
            windows_.erase(reinterpret_cast<const xcb_destroy_notify_event_t*>(event)->window);
        }
        return false;
    }

private:
    std::set<xcb_window_t> windows_;
};

// Calls `then` when the windows that cover the screen are gone or the time is up.
class LockerWait : public QObject {
public:
    LockerWait(QScreen& screen, LastingCovers& lasting, std::function<void()> then)
        : screen_(&screen)
        , lasting_(lasting)
        , then_(std::move(then)) {
        since_.start();
        startTimer(interval);
    }

protected:
    void timerEvent(QTimerEvent* event) override {
        const bool isFree = !screen_ || lasting_.contain(coversOf(*screen_));
        if (!isFree && since_.elapsed() < patience) {
            return;
        }
        // The compositor takes a frame to draw what was below.
        if (isFree && !std::exchange(wasFree_, true)) {
            return;
        }
        if (!isFree) {
            lasting_.add(*screen_); // what is still there has not come with the lock
        }
        killTimer(event->timerId());
        then_();
    }

private:
    static constexpr int interval = 30;     // milliseconds
    static constexpr qint64 patience = 450; // milliseconds; the last interval comes on top

    QPointer<QScreen> screen_;
    LastingCovers& lasting_;
    std::function<void()> then_;
    QElapsedTimer since_;
    bool wasFree_ = false;
};

class X11Picture final : public DesktopPicture {
public:
    std::unique_ptr<QObject> afterLocker(QScreen& screen, bool looksThrough,
                                         const std::function<void()>& then) override {
        const bool isNeeded = looksThrough || !x11::hasCompositor();
        if (!isNeeded || lasting_.contain(coversOf(screen))) {
            then();
            return nullptr;
        }
        return std::make_unique<LockerWait>(screen, lasting_, then);
    }

    QImage capture(QScreen& screen) override {
        QImage picture = screen.grabWindow(0).toImage();
        if (!picture.isNull() && picture.format() != QImage::Format_RGB32) {
            picture.convertTo(QImage::Format_RGB32);
        }
        return picture;
    }

private:
    LastingCovers lasting_;
};

} // namespace

std::unique_ptr<DesktopPicture> makeX11Picture() {
    return std::make_unique<X11Picture>();
}

std::unique_ptr<MainScreen> makeX11MainScreen() {
    return std::make_unique<X11MainScreen>();
}

} // namespace morrowleaf
