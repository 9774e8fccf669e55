// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/macos/core/maccore.h"
#include "platform/macos/macparts.h"
#include "platform/macos/macscreens.h"
#include "platform/macos/nativeview.h"
#include "platform/shared/screenfollower.h"

#include <QScreen>
#include <QWidget>

#include <optional>
#include <utility>

namespace morrowleaf {

namespace {

MacBackdropKind nativeKind(SystemBackdrop::Kind kind) {
    switch (kind) {
    case SystemBackdrop::Kind::Glass:
        return MacBackdropGlass;
    case SystemBackdrop::Kind::ClearGlass:
        return MacBackdropClearGlass;
    case SystemBackdrop::Kind::Blur:
    case SystemBackdrop::Kind::None:
        break;
    }
    return MacBackdropBlur;
}

// A layer of the system behind the contents of a window.
class Layer {
public:
    Layer(const QWidget& window, SystemBackdrop::Kind kind)
        : kind_(kind)
        , layer_(macAddBackdrop(nativeView(window), nativeKind(kind))) {}
    ~Layer() { macRemoveBackdrop(layer_); }
    Layer(const Layer&) = delete;
    Layer& operator=(const Layer&) = delete;

    SystemBackdrop::Kind kind() const { return kind_; }
    void setLook(const SystemBackdrop& backdrop) {
        const QColor& tint = backdrop.tint;
        macTintBackdrop(layer_, tint.redF(), tint.greenF(), tint.blueF(), tint.alphaF());
        macSetBackdropOpacity(layer_, backdrop.opacity);
    }

private:
    SystemBackdrop::Kind kind_;
    void* layer_;
};

class MacOverlay final : public OverlayWindow {
public:
    MacOverlay(QWidget& window, QScreen& screen, const OverlaySetup& setup, SystemVersion version)
        : window_(window)
        , screen_(screen)
        , level_(setup.level)
        , version_(version) {
        // Asked for one by one, the toolkit adds neither a state of full screen nor the
        // buttons of a title bar.
        window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::CustomizeWindowHint |
                              Qt::NoDropShadowWindowHint);
        window.setAttribute(Qt::WA_TranslucentBackground);
        window.setGeometry(screen.geometry());
        follower_.emplace(window, screen);
        connect(&*follower_, &ScreenFollower::lost, this, [this] {
            isLost_ = true;
            emit lost();
        });
        connect(&screen, &QScreen::geometryChanged, this, [this] { cover(); });
    }
    ~MacOverlay() override { orderOut(); }

    SeeThrough seeThrough() const override {
        return version_ == SystemVersion::WithGlass ? SeeThrough::SystemGlass
                                                    : SeeThrough::SystemBlur;
    }
    bool setAlpha(double alpha) override {
        macSetAlpha(nativeView(window_), alpha);
        return true;
    }
    void setBackdrop(const SystemBackdrop& backdrop) override {
        if (backdrop.kind == SystemBackdrop::Kind::None) {
            layer_.reset();
            return;
        }
        if (!layer_ || layer_->kind() != backdrop.kind) {
            layer_.reset();
            layer_.emplace(window_, backdrop.kind);
        }
        layer_->setLook(backdrop);
    }
    void orderFront() override {
        window_.show();
        // The toolkit has just set what it thinks right.
        cover();
        macOrderFront(nativeView(window_));
    }
    void orderOut() override {
        layer_.reset();
        if (window_.isVisible()) {
            macOrderOut(nativeView(window_));
            window_.hide();
        }
    }
    void setLevel(WindowLevel level) override {
        level_ = level;
        macSetLevel(nativeView(window_), nativeLevel());
        if (level == WindowLevel::ScreenSaver) {
            macOrderFront(nativeView(window_));
        }
    }
    // Nobody can grab input here.
    void releaseInput() override {}
    quint32 orderedFrontAt() const override { return 0; }

private:
    MacLevel nativeLevel() const {
        return level_ == WindowLevel::ScreenSaver ? MacLevelScreenSaver : MacLevelNormal;
    }
    void cover() {
        if (!isLost_) {
            macCoverDisplay(nativeView(window_), displayOf(screen_), nativeLevel());
        }
    }

    QWidget& window_;
    const QScreen& screen_;
    bool isLost_ = false;
    WindowLevel level_;
    SystemVersion version_;
    std::optional<ScreenFollower> follower_;
    std::optional<Layer> layer_;
};

class MacOverlays final : public OverlayMaker {
public:
    explicit MacOverlays(SystemVersion version)
        : version_(version) {}
    std::unique_ptr<OverlayWindow> make(QWidget& window, QScreen& screen,
                                        const OverlaySetup& setup) override {
        return std::make_unique<MacOverlay>(window, screen, setup, version_);
    }

private:
    SystemVersion version_;
};

} // namespace

std::unique_ptr<OverlayMaker> makeMacOverlays(SystemVersion version) {
    return std::make_unique<MacOverlays>(version);
}

} // namespace morrowleaf
