// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/wayland/waylandparts.h"

#include "platform/shared/screenfollower.h"

#include <QScreen>
#include <QWidget>

namespace morrowleaf {

namespace {

class WaylandOverlay final : public OverlayWindow {
public:
    WaylandOverlay(QWidget& window, QScreen& screen, const OverlaySetup& setup)
        : window_(window)
        , fullScreen_(setup.level == WindowLevel::ScreenSaver)
        , follower_(window, screen) {
        connect(&follower_, &ScreenFollower::lost, this, &OverlayWindow::lost);
        window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
        window.setScreen(&screen);
        window.setGeometry(screen.geometry());
    }
    ~WaylandOverlay() override { window_.hide(); }

    SeeThrough seeThrough() const override { return SeeThrough::No; }
    void orderFront() override {
        if (fullScreen_) {
            window_.showFullScreen();
        } else {
            window_.show();
        }
        window_.activateWindow();
    }
    void orderOut() override { window_.hide(); }
    void setLevel(WindowLevel level) override {
        if (!window_.isVisible() || !fullScreen_) {
            return;
        }
        if (level == WindowLevel::ScreenSaver) {
            window_.showFullScreen();
            window_.activateWindow();
        } else {
            window_.showNormal();
        }
    }
    void releaseInput() override {} // it grabs nothing
    quint32 orderedFrontAt() const override { return 0; }

private:
    QWidget& window_;
    bool fullScreen_;
    ScreenFollower follower_;
};

class WaylandOverlays final : public OverlayMaker {
public:
    std::unique_ptr<OverlayWindow> make(QWidget& window, QScreen& screen,
                                        const OverlaySetup& setup) override {
        return std::make_unique<WaylandOverlay>(window, screen, setup);
    }
};

} // namespace

std::unique_ptr<OverlayMaker> makeWaylandOverlays() {
    return std::make_unique<WaylandOverlays>();
}

} // namespace morrowleaf
