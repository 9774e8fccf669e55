// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/x11/x11parts.h"

#include "platform/linux/x11/placement.h"
#include "platform/linux/x11/standin.h"
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

namespace morrowleaf {

namespace {

constexpr int focusPatience = 120;  // milliseconds
constexpr int settlingTime = 1'500; // milliseconds in which window managers may move the focus
constexpr int standInStays = 300;   // milliseconds
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
        , grab_(std::move(hold)) {
        Qt::WindowFlags flags = Qt::Window | Qt::FramelessWindowHint;
        if (!managed_) {
            flags |= Qt::X11BypassWindowManagerHint;
        }
        if (setup.level == WindowLevel::ScreenSaver) {
            flags |= Qt::WindowStaysOnTopHint;
        }
        window.setWindowFlags(flags);
        window.setAttribute(Qt::WA_TranslucentBackground, composited_);
        cover(screen);
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
        if (!managed_ || setup_.level != WindowLevel::ScreenSaver) {
            window_.show();
        } else if (QGuiApplication::screens().size() > 1) {
            findScreen();
            return;
        } else {
            window_.showFullScreen();
        }
        moveToFront();
    }

    void orderOut() override {
        watch_.stop();
        placement_.reset();
        // First, because unmapping the window moves the focus to the root, and the window
        // manager would react to that after the focus is set here.
        grab_->giveBack(*window_.windowHandle());
        window_.hide();
        standIn_.reset();
    }

    void setLevel(WindowLevel level) override {
        if (managed_) {
            return;
        }
        lowered_ = level == WindowLevel::Normal;
        if (!lowered_) {
            comeBack();
            return;
        }
        grab_->releaseGrabs(*window_.windowHandle());
        if (x11::hasWindowManager()) {
            makeWay();
        } else {
            stack(XCB_STACK_MODE_BELOW);
        }
    }

    void releaseInput() override {
        inputReleased_ = true;
        watch_.stop();
        grab_->releaseGrabs(*window_.windowHandle());
    }

    void retakeInput() override {
        if (inputReleased_ && window_.isVisible() && !lowered_) {
            inputReleased_ = false;
            moveToFront();
        }
    }

    quint32 orderedFrontAt() const override { return orderedFrontAt_; }

    bool nativeEventFilter(const QByteArray& /*type*/, void* message,
                           qintptr* /*result*/) override {
        const auto* event = static_cast<const xcb_generic_event_t*>(message);
        const auto type = event->response_type & 0x7F;
        if (type == XCB_VISIBILITY_NOTIFY) {
            const auto* change = reinterpret_cast<const xcb_visibility_notify_event_t*>(event);
            if (change->window == id() && change->state != XCB_VISIBILITY_UNOBSCURED) {
                raiseIfCovered();
            }
        } else if (type == XCB_FOCUS_OUT) {
            // Qt tells of it nearly half a second later. Those of a grab are not meant.
            const auto* change = reinterpret_cast<const xcb_focus_out_event_t*>(event);
            if (change->event == id() && (change->mode == XCB_NOTIFY_MODE_NORMAL ||
                                          change->mode == XCB_NOTIFY_MODE_WHILE_GRABBED)) {
                followFocus();
            }
        }
        return false;
    }

private:
    xcb_window_t id() const { return static_cast<xcb_window_t>(window_.winId()); }

    void cover(QScreen& screen) {
        follower_ = std::make_unique<ScreenFollower>(window_, screen);
        connect(follower_.get(), &ScreenFollower::lost, this, &OverlayWindow::lost);
        window_.setScreen(&screen);
        window_.setGeometry(screen.geometry());
    }

    // The caller could only guess the screen, because it does not know the windows of Wayland.
    void findScreen() {
        // Some window managers give the focus to any new window.
        grab_->prepare(*window_.windowHandle());
        placement_ = std::make_unique<Placement>();
        connect(
            placement_.get(), &Placement::found, this,
            [this](QScreen* screen) {
                if (screen != nullptr) {
                    cover(*screen);
                }
                window_.showFullScreen();
                moveToFront();
                // It is the sender.
                placement_.release()->deleteLater();
            },
            Qt::SingleShotConnection);
    }

    void setWindowProperties() {
        constexpr quint32 allDesktops = 0xFFFFFFFF;
        x11::setCardinal(id(), "_NET_WM_DESKTOP", allDesktops);
        x11::hideFromTaskLists(id());
        // Keeps compositing on: stopping and resuming it flickers, and the fades need it.
        constexpr quint32 keepCompositing = 2;
        x11::setCardinal(id(), "_NET_WM_BYPASS_COMPOSITOR", keepCompositing);
    }

    void listen() {
        if (managed_) {
            return;
        }
        qGuiApp->installNativeEventFilter(this);
        x11::listenTo(id(), XCB_EVENT_MASK_VISIBILITY_CHANGE);
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

    void followFocus() {
        if (grab_->hasLetGo(*window_.windowHandle())) {
            if (x11::isPressedOutside(id())) {
                emit clickedElsewhere();
            } else {
                grab_->retake(*window_.windowHandle());
            }
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

    void stack(std::uint32_t mode) {
        xcb_configure_window(x11::connection(), id(), XCB_CONFIG_WINDOW_STACK_MODE, &mode);
    }

    // Leaves the screen to a window with the same picture.
    void makeWay() {
        const QImage picture = window_.grab().toImage();
        standIn_ = std::make_unique<StandIn>(*window_.screen(), picture);
        window_.windowHandle()->setTransientParent(standIn_.get());
        standIn_->present([this] {
            if (lowered_) {
                window_.hide();
            }
        });
    }

    void comeBack() {
        window_.windowHandle()->setTransientParent(nullptr);
        window_.show();
        moveToFront();
        // Keys arrive here while the window manager settles where the focus goes after the
        // dialog and the stand-in.
        grab_->take(*window_.windowHandle(), X11Grab::What::FocusAndKeyboard);
        // It stays until the desktop has drawn this one.
        QTimer::singleShot(standInStays, this, [this] {
            if (!lowered_) {
                standIn_.reset();
            }
        });
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
            stack(XCB_STACK_MODE_ABOVE);
        }
    }

    QWidget& window_;
    OverlaySetup setup_;
    bool managed_;
    bool composited_;
    bool lowered_ = false;
    std::unique_ptr<StandIn> standIn_; // null except while a dialog is open, and shortly after
    bool inputReleased_ = false;
    int raises_ = 0;
    quint32 orderedFrontAt_ = 0;
    std::shared_ptr<X11Grab> grab_;
    std::unique_ptr<ScreenFollower> follower_;
    std::unique_ptr<Placement> placement_; // null except while the screen is looked for
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
