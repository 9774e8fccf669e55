// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTimer>
#include <QWindow>

#include <xcb/xcb.h>

namespace morrowleaf {

// Keyboard focus, keyboard and mouse, held for one window at a time. Whoever
// had the focus before the first window took it gets it back after the last.
class X11Hold {
public:
    X11Hold();

    enum class What { Focus, FocusAndKeyboard, Everything };
    // Takes at once what is free, and the rest as soon as another client lets go.
    void take(QWindow& window, What what);
    // Lets go of keyboard and mouse, keeps in mind who had the focus.
    void release(const QWindow& window);
    // The window is off the screen: gives the focus back.
    void giveBack(const QWindow& window);

    bool isHolder(const QWindow& window) const { return holder_ == &window; }

private:
    void grab();

    QWindow* holder_ = nullptr;
    What what_ = What::Focus;
    bool keyboard_ = false;
    bool mouse_ = false;
    xcb_window_t before_ = XCB_WINDOW_NONE;
    QTimer retry_;
};

} // namespace morrowleaf
