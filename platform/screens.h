// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

class QScreen;

namespace morrowleaf {

// Finds the main screen: the one on which the user is working. Main thread.
class MainScreen {
public:
    virtual ~MainScreen() = default;
    MainScreen(const MainScreen&) = delete;
    MainScreen& operator=(const MainScreen&) = delete;

    // The screen of the window with keyboard focus. Where the desktop does not
    // tell which that is, the screen of the pointer or the primary one. Null
    // while no monitor is on.
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

    // The whole of `screen` at this moment, in device pixels and as
    // QImage::Format_RGB32; null where the desktop does not allow it. Blocks
    // for some tens of milliseconds, at most 250.
    virtual QImage capture(QScreen& screen) = 0;

protected:
    DesktopPicture() = default;
};

} // namespace morrowleaf
