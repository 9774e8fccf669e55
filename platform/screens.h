// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QObject>

#include <functional>
#include <memory>

class QScreen;

namespace morrowleaf {

// Finds the main screen: the one on which the user is working. Main thread.
class MainScreen {
public:
    virtual ~MainScreen() = default;
    MainScreen(const MainScreen&) = delete;
    MainScreen& operator=(const MainScreen&) = delete;

    // The screen of the window with keyboard focus. If the desktop does not report that
    // window, the screen of the pointer or the primary screen. Null while no monitor is on.
    virtual QScreen* current() const = 0;

protected:
    MainScreen() = default;
};

// Takes pictures of what a screen shows. Main thread.
class DesktopPicture {
public:
    virtual ~DesktopPicture() = default;
    DesktopPicture(const DesktopPicture&) = delete;
    DesktopPicture& operator=(const DesktopPicture&) = delete;

    // Calls `then` once nothing that a screen locker has left covers `screen`: at once if
    // nothing does, and after half a second in any case. Also at once where capture() will
    // not be needed, which depends on whether the user wants to look through the backdrop.
    // Destroying the result, which is null if this has called `then`, cancels the call.
    virtual std::unique_ptr<QObject> afterLocker(QScreen& /*screen*/, bool /*looksThrough*/,
                                                 const std::function<void()>& then) {
        then();
        return nullptr;
    }

    // The whole of `screen` in device pixels, as QImage::Format_RGB32; null if the desktop
    // does not allow it. Blocks for some tens of milliseconds, on Wayland for at most about
    // 250.
    virtual QImage capture(QScreen& screen) = 0;

protected:
    DesktopPicture() = default;
};

} // namespace morrowleaf
