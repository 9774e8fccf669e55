// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/x11/x11parts.h"

#include "platform/linux/x11/x11connection.h"
#include "platform/linux/x11/x11grab.h"
#include "platform/linux/x11/x11monitors.h"
#include "platform/shared/screenfollower.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <array>

namespace morrowleaf {

namespace {

constexpr int focusPatience = 120;  // milliseconds
constexpr int settlingTime = 1'500; // milliseconds in which window managers may move the focus
constexpr int mostRaises = 20;      // per showing, so that two windows do not fight for ever

X11Grab::What initialHold(InputHold hold) {
    return hold == InputHold::KeyboardAndMouse ? X11Grab::What::Everything : X11Grab::What::Focus;
}

class X11Overlay final : public OverlayWindow, public QAbstractNativeEventFilter {
public:
    X11Overlay(QWidget& window, QScreen& screen, const OverlaySetup& setup, bool managed,
               std::shared_ptr<X11Grab> hold)
        : window_(window)
        , setup_(setup)
        , managed_(managed || setup.level != WindowLevel::ScreenSaver)
        , composited_(x11::hasCompositor())
        , grab_(std::move(hold))
        , follower_(window, screen) {
        connect(&follower_, &ScreenFollower::lost, this, &OverlayWindow::lost);
        Qt::WindowFlags flags = Qt::Window | Qt::FramelessWindowHint;
        if (!managed_) {
            flags |= Qt::X11BypassWindowManagerHint;
        }
        if (setup.level == WindowLevel::ScreenSaver) {
            flags |= Qt::WindowStaysOnTopHint;
        }
        window.setWindowFlags(flags);
        window.setAttribute(Qt::WA_TranslucentBackground, composited_);
        window.setScreen(&screen);
        window.setGeometry(screen.geometry());
        window.winId();
        setWindowProperties();
        listen();
        connect(&monitors_, &X11Monitors::changed, this, [this] {
            if (!X11Monitors::isAnyOn()) {
                emit lost();
            }
        });
    }

    ~X11Overlay() override {
        qGuiApp->removeNativeEventFilter(this);
        if (window_.isVisible()) {
            orderOut();
        }
        grab_->giveBack(*window_.windowHandle());
    }

    SeeThrough seeThrough() const override {
        return composited_ ? SeeThrough::Plain : SeeThrough::No;
    }

    void orderFront() override {
        inputReleased_ = false;
        orderedFrontAt_ = x11::serverTime();
        if (managed_ && setup_.level == WindowLevel::ScreenSaver) {
            window_.showFullScreen();
        } else {
            window_.show();
        }
        moveToFront();
    }

    void orderOut() override {
        watch_.stop();
        // First, because unmapping the window moves the focus to the root, and the window
        // manager would react to that after the focus is set here.
        grab_->giveBack(*window_.windowHandle());
        window_.hide();
    }

    void setLevel(WindowLevel level) override {
        if (managed_) {
            return;
        }
        lowered_ = level == WindowLevel::Normal;
        if (lowered_) {
            grab_->releaseGrabs(*window_.windowHandle());
            stack(XCB_STACK_MODE_BELOW, XCB_WINDOW_NONE);
            standBelowActive();
        } else {
            moveToFront();
        }
    }

    void releaseInput() override {
        inputReleased_ = true;
        watch_.stop();
        grab_->releaseGrabs(*window_.windowHandle());
    }

    quint32 orderedFrontAt() const override { return orderedFrontAt_; }

    bool nativeEventFilter(const QByteArray& /*type*/, void* message,
                           qintptr* /*result*/) override {
        const auto* event = static_cast<const xcb_generic_event_t*>(message);
        const auto type = event->response_type & 0x7F;
        if (type == XCB_PROPERTY_NOTIFY && lowered_) {
            const auto* change = reinterpret_cast<const xcb_property_notify_event_t*>(event);
            if (change->window == x11::rootWindow() && change->atom == activeWindowAtom_) {
                standBelowActive();
            }
        } else if (type == XCB_VISIBILITY_NOTIFY) {
            const auto* change = reinterpret_cast<const xcb_visibility_notify_event_t*>(event);
            if (change->window == id() && change->state != XCB_VISIBILITY_UNOBSCURED) {
                raiseIfCovered();
            }
        }
        return false;
    }

private:
    xcb_window_t id() const { return static_cast<xcb_window_t>(window_.winId()); }

    void setWindowProperties() {
        constexpr quint32 allDesktops = 0xFFFFFFFF;
        x11::setCardinal(id(), "_NET_WM_DESKTOP", allDesktops);
        const std::array<xcb_atom_t, 2> skip{x11::atom("_NET_WM_STATE_SKIP_TASKBAR"),
                                             x11::atom("_NET_WM_STATE_SKIP_PAGER")};
        xcb_change_property(x11::connection(), XCB_PROP_MODE_APPEND, id(),
                            x11::atom("_NET_WM_STATE"), XCB_ATOM_ATOM, 32, skip.size(),
                            skip.data());
        // Keeps compositing on: stopping and resuming it flickers, and the fades need it.
        constexpr quint32 keepCompositing = 2;
        x11::setCardinal(id(), "_NET_WM_BYPASS_COMPOSITOR", keepCompositing);
    }

    void listen() {
        if (managed_) {
            return;
        }
        activeWindowAtom_ = x11::atom("_NET_ACTIVE_WINDOW");
        qGuiApp->installNativeEventFilter(this);
        auto* c = x11::connection();
        const x11::Reply<xcb_get_window_attributes_reply_t> now(
            xcb_get_window_attributes_reply(c, xcb_get_window_attributes(c, id()), nullptr));
        if (now) {
            const std::uint32_t mask = now->your_event_mask | XCB_EVENT_MASK_VISIBILITY_CHANGE;
            xcb_change_window_attributes(c, id(), XCB_CW_EVENT_MASK, &mask);
        }
        if (setup_.hold == InputHold::KeyboardIfNeeded) {
            watch_.setSingleShot(true);
            watch_.setInterval(focusPatience);
            connect(&watch_, &QTimer::timeout, this, [this] { retakeFocus(); });
            connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this] {
                if (window_.isVisible() && !lowered_ && !inputReleased_) {
                    watch_.start();
                }
            });
        }
    }

    void moveToFront() {
        if (inputReleased_) {
            return;
        }
        movedToFront_.start();
        window_.raise();
        grab_->take(*window_.windowHandle(),
                    managed_ ? X11Grab::What::Focus : initialHold(setup_.hold));
        if (setup_.hold == InputHold::KeyboardIfNeeded && !managed_) {
            watch_.start();
        }
    }

    // Takes the focus again if no window of the program has it, or if the window manager
    // gave it to another window of the program when a dialog closed.
    void retakeFocus() {
        const QWindow* focused = QGuiApplication::focusWindow();
        const bool strayed =
            focused != window_.windowHandle() && movedToFront_.elapsed() < settlingTime;
        if (window_.isVisible() && !lowered_ && !inputReleased_ &&
            (focused == nullptr || strayed)) {
            grab_->take(*window_.windowHandle(), focused == nullptr
                                                     ? X11Grab::What::FocusAndKeyboard
                                                     : X11Grab::What::Focus);
        }
    }

    void stack(std::uint32_t mode, xcb_window_t sibling) {
        auto* c = x11::connection();
        std::array<std::uint32_t, 2> values{sibling, mode};
        std::uint16_t mask = XCB_CONFIG_WINDOW_STACK_MODE;
        if (sibling != XCB_WINDOW_NONE) {
            mask |= XCB_CONFIG_WINDOW_SIBLING;
        } else {
            values[0] = mode;
        }
        // The sibling may be gone by now, which is not an error here.
        const x11::Reply<xcb_generic_error_t> ignored(
            xcb_request_check(c, xcb_configure_window_checked(c, id(), mask, values.data())));
    }

    // Places the window directly below the active dialog, above everything else.
    void standBelowActive() {
        const auto active = x11::property(x11::rootWindow(), "_NET_ACTIVE_WINDOW");
        if (!active || active->empty() || active->front() == XCB_WINDOW_NONE) {
            return;
        }
        const auto owner = x11::property(active->front(), "WM_TRANSIENT_FOR");
        if (owner && !owner->empty() && owner->front() == dialog_) {
            return; // a dialog's own message box: keep the dialog visible
        }
        dialog_ = active->front();
        const xcb_window_t frame = x11::topLevelOf(dialog_);
        if (frame != XCB_WINDOW_NONE && frame != id()) {
            stack(XCB_STACK_MODE_BELOW, frame);
        }
    }

    // Raises the window again, unless a menu of the program covers it.
    void raiseIfCovered() {
        const auto windows = QGuiApplication::topLevelWindows();
        const bool ownPopup = std::any_of(windows.begin(), windows.end(), [](const QWindow* w) {
            return w->isVisible() && (w->type() == Qt::Popup || w->type() == Qt::ToolTip);
        });
        if (!lowered_ && !inputReleased_ && !ownPopup && window_.isVisible() &&
            grab_->isHolder(*window_.windowHandle()) && raises_ < mostRaises) {
            ++raises_;
            stack(XCB_STACK_MODE_ABOVE, XCB_WINDOW_NONE);
        }
    }

    QWidget& window_;
    OverlaySetup setup_;
    bool managed_;
    bool composited_;
    bool lowered_ = false;
    xcb_window_t dialog_ = XCB_WINDOW_NONE; // the dialog for which the window was lowered
    bool inputReleased_ = false;
    int raises_ = 0;
    quint32 orderedFrontAt_ = 0;
    xcb_atom_t activeWindowAtom_ = XCB_ATOM_NONE;
    std::shared_ptr<X11Grab> grab_;
    ScreenFollower follower_;
    X11Monitors monitors_;
    QTimer watch_;
    QElapsedTimer movedToFront_;
};

class X11Overlays final : public OverlayMaker {
public:
    explicit X11Overlays(bool managed)
        : managed_(managed)
        , grab_(std::make_shared<X11Grab>()) {}

    std::unique_ptr<OverlayWindow> make(QWidget& window, QScreen& screen,
                                        const OverlaySetup& setup) override {
        return std::make_unique<X11Overlay>(window, screen, setup, managed_, grab_);
    }

private:
    bool managed_;
    std::shared_ptr<X11Grab> grab_;
};

} // namespace

std::unique_ptr<OverlayMaker> makeX11Overlays(bool managed) {
    return std::make_unique<X11Overlays>(managed);
}

} // namespace morrowleaf
