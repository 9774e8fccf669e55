// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTimer>
#include <QWindow>

#include <xcb/xcb.h>

namespace morrowleaf {

// Keyboard focus and grabs of keyboard and mouse, for one window at a time. Returns the
// focus at the end to the window that had it before the first prepare() or take(). The grabs
// keep a window manager that moves the focus from giving away keys. They end after some
// seconds, because no screen locker works beside them, unless the window has lost the focus
// by then.
class X11Grab {
public:
    X11Grab();

    // Remembers which window has the focus, if another one may get it before take().
    void prepare(QWindow& window);

    enum class What { Focus, FocusAndKeyboard, Everything };
    // Takes what is free at once, and the rest as soon as other clients release it.
    void take(QWindow& window, What what);
    // Whether grabs of both devices have ended since take().
    bool hasLetGo(const QWindow& window) const;
    // Takes the grabs again, if the focus has left the window after that.
    void retake(const QWindow& window);
    // Releases the grabs for good; remembers which window had the focus before.
    void releaseGrabs(const QWindow& window);
    // Releases the grabs and returns the focus. Call when the window leaves the screen.
    void giveBack(const QWindow& window);

    bool isHolder(const QWindow& window) const { return holder_ == &window; }

private:
    void grab();
    void ungrab();

    QWindow* holder_ = nullptr;
    What what_ = What::Focus;
    bool keyboard_ = false;
    bool mouse_ = false;
    xcb_window_t previousFocus_ = XCB_WINDOW_NONE;
    QTimer retry_;
    QTimer enough_;
};

} // namespace morrowleaf
