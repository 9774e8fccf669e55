// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/null/nullplatform.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace morrowleaf {

namespace {

class NullOverlay final : public OverlayWindow {
public:
    NullOverlay(QWidget& window, const QScreen& screen)
        : window_(window) {
        window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
        window.setAttribute(Qt::WA_TranslucentBackground);
        window.setGeometry(screen.geometry());
    }
    ~NullOverlay() override { window_.hide(); }

    SeeThrough seeThrough() const override { return SeeThrough::Plain; }
    void orderFront() override {
        window_.show();
        window_.raise();
        window_.activateWindow();
    }
    void orderOut() override { window_.hide(); }
    void setLevel(WindowLevel /*level*/) override {}
    void releaseInput() override {}
    quint32 orderedFrontAt() const override { return 0; }

private:
    QWidget& window_;
};

class NullOverlays final : public OverlayMaker {
public:
    std::unique_ptr<OverlayWindow> make(QWidget& window, QScreen& screen,
                                        const OverlaySetup& /*setup*/) override {
        return std::make_unique<NullOverlay>(window, screen);
    }
};

class PrimaryScreen final : public MainScreen {
public:
    QScreen* current() const override {
        QScreen* screen = QGuiApplication::primaryScreen();
        // With all monitors off, Qt may keep a screen without an area.
        return screen != nullptr && !screen->geometry().isEmpty() ? screen : nullptr;
    }
};

class NoPicture final : public DesktopPicture {
public:
    QImage capture(QScreen& /*screen*/) override { return {}; }
};

class NoChooser final : public FileChooser {
public:
    FileRequest* ask(QWidget& window, const FileQuestion& /*question*/) override {
        auto* request = new FileRequest(&window);
        QTimer::singleShot(0, request, [request] {
            request->deleteLater();
            emit request->answered({.kind = FileAnswer::Kind::Unavailable, .path = {}});
        });
        return request;
    }
};

class HintFloater final : public Floater {
public:
    void setFloating(QWidget& window, bool isFloating) override {
        // A change of the widget's flags would hide a widget that is shown.
        if (QWindow* handle = window.windowHandle()) {
            handle->setFlag(Qt::WindowStaysOnTopHint, isFloating);
        } else {
            window.setWindowFlag(Qt::WindowStaysOnTopHint, isFloating);
        }
    }
};

class NoInputTaps final : public InputTaps {
public:
    std::unique_ptr<InputTap> tap(TappedInput /*input*/, std::function<bool()> /*take*/) override {
        return nullptr;
    }
};

class RememberedLoginItem final : public LoginItem {
public:
    Status status() const override { return status_; }
    std::optional<QString> registerItem() override {
        status_ = Status::Enabled;
        return std::nullopt;
    }
    std::optional<QString> unregisterItem() override {
        status_ = Status::NotRegistered;
        return std::nullopt;
    }

private:
    Status status_ = Status::NotRegistered;
};

class NoWishes final : public DesktopWishes {
public:
    Wishes current() const override { return {}; }
};

class NoNotifications final : public Notifications {
public:
    void show(const Notification& /*notification*/, std::function<void(bool)> done) override {
        QTimer::singleShot(0, this, [done = std::move(done)] { done(false); });
    }
};

class OnlyInstance final : public SingleInstance {
public:
    bool claim(const std::optional<LaunchRequest>& /*request*/) override { return true; }
};

class NoRequests final : public RequestListener {
public:
    void listen() override { emit reachable(); }
};

} // namespace

Platform makeNullPlatform() {
    return {.mainScreen = std::make_unique<PrimaryScreen>(),
            .overlays = std::make_unique<NullOverlays>(),
            .desktopPicture = std::make_unique<NoPicture>(),
            .fileChooser = std::make_unique<NoChooser>(),
            .floater = std::make_unique<HintFloater>(),
            .inputTaps = std::make_unique<NoInputTaps>(),
            .sessionEvents = std::make_unique<SessionEvents>(),
            .trayHost = std::make_unique<TrayHost>(),
            .loginItem = std::make_unique<RememberedLoginItem>(),
            .wishes = std::make_unique<NoWishes>(),
            .notifications = std::make_unique<NoNotifications>(),
            .requests = std::make_unique<NoRequests>()};
}

std::unique_ptr<SingleInstance> makeNullInstance() {
    return std::make_unique<OnlyInstance>();
}

} // namespace morrowleaf
