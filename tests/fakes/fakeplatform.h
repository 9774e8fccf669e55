// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/null/nullplatform.h"
#include "tests/fakes/fakefilechooser.h"

#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QWidget>

#include <vector>

namespace morrowleaf {

// Records what happened to one overlay; it outlives the overlay.
struct OverlayRecord {
    OverlaySetup setup;
    QWidget* window = nullptr;
    OverlayWindow* overlay = nullptr; // null once destroyed
    int fronts = 0;
    int outs = 0;
    int inputReleases = 0;
    int inputRetakes = 0;
    std::vector<WindowLevel> levels;
    double alphaAtFront = -1;
    std::vector<double> alphas; // those that the overlay has taken
    std::vector<SystemBackdrop> backdrops;
};

// Records what the controller does to the desktop.
class FakeDesktop {
public:
    FakeDesktop()
        : platform(makeNullPlatform()) {
        platform.mainScreen = std::make_unique<Screens>(*this);
        platform.overlays = std::make_unique<Overlays>(*this);
        platform.desktopPicture = std::make_unique<Picture>(*this);
        auto chooser = std::make_unique<FakeFileChooser>();
        files = chooser.get();
        platform.fileChooser = std::move(chooser);
    }

    Platform platform;
    bool hasScreen = true;
    SeeThrough seeThrough = SeeThrough::Plain;
    bool fadesWindows = false; // by itself
    QImage picture;
    int captures = 0;
    bool lockerStays = false;           // on the screen after an unlock
    bool looksThrough = false;          // as the controller has told
    std::function<void()> lockerLeaves; // call it to let it go
    quint32 frontTime = 0;
    FakeFileChooser* files = nullptr;
    std::vector<std::shared_ptr<OverlayRecord>> overlays;

private:
    struct Screens final : MainScreen {
        explicit Screens(FakeDesktop& d)
            : desktop(d) {}
        QScreen* current() const override {
            return desktop.hasScreen ? QGuiApplication::primaryScreen() : nullptr;
        }
        FakeDesktop& desktop;
    };

    struct Overlay final : OverlayWindow {
        Overlay(FakeDesktop& d, std::shared_ptr<OverlayRecord> r)
            : desktop(d)
            , record(std::move(r)) {}
        ~Overlay() override { record->overlay = nullptr; }
        SeeThrough seeThrough() const override { return desktop.seeThrough; }
        bool setAlpha(double alpha) override {
            if (desktop.fadesWindows) {
                record->alphas.push_back(alpha);
            }
            return desktop.fadesWindows;
        }
        void setBackdrop(const SystemBackdrop& backdrop) override {
            record->backdrops.push_back(backdrop);
        }
        void orderFront() override {
            ++record->fronts;
            record->window->show();
        }
        void orderOut() override {
            ++record->outs;
            record->window->hide();
        }
        void setLevel(WindowLevel level) override { record->levels.push_back(level); }
        void releaseInput() override { ++record->inputReleases; }
        void retakeInput() override { ++record->inputRetakes; }
        quint32 orderedFrontAt() const override { return desktop.frontTime; }
        FakeDesktop& desktop;
        std::shared_ptr<OverlayRecord> record;
    };

    struct Overlays final : OverlayMaker {
        explicit Overlays(FakeDesktop& d)
            : desktop(d) {}
        std::unique_ptr<OverlayWindow> make(QWidget& window, QScreen& screen,
                                            const OverlaySetup& setup) override {
            auto record = std::make_shared<OverlayRecord>();
            record->setup = setup;
            record->window = &window;
            desktop.overlays.push_back(record);
            window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
            window.setAttribute(Qt::WA_TranslucentBackground, desktop.seeThrough != SeeThrough::No);
            window.setGeometry(screen.geometry());
            auto overlay = std::make_unique<Overlay>(desktop, record);
            record->overlay = overlay.get();
            return overlay;
        }
        FakeDesktop& desktop;
    };

    struct Picture final : DesktopPicture {
        explicit Picture(FakeDesktop& d)
            : desktop(d) {}
        std::unique_ptr<QObject> afterLocker(QScreen&, bool looksThrough,
                                             const std::function<void()>& then) override {
            if (!desktop.lockerStays) {
                then();
                return nullptr;
            }
            desktop.looksThrough = looksThrough;
            auto wait = std::make_unique<QObject>();
            desktop.lockerLeaves = [guard = QPointer(wait.get()), then] {
                if (guard) {
                    then();
                }
            };
            return wait;
        }
        QImage capture(QScreen&) override {
            ++desktop.captures;
            return desktop.picture;
        }
        FakeDesktop& desktop;
    };
};

} // namespace morrowleaf
