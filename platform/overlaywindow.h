// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <memory>

class QScreen;
class QWidget;

namespace morrowleaf {

// How high a window stands among those of the desktop.
enum class WindowLevel {
    Normal,      // among ordinary windows
    ScreenSaver, // above panels, docks and the windows of all other programs
};

// The input that an overlay takes while it is in front.
enum class InputHold {
    FocusOnly,        // keyboard focus, without any grab
    KeyboardIfNeeded, // keyboard focus; a keyboard grab where the focus does not stay otherwise
    KeyboardAndMouse, // keyboard focus and a grab of both devices
};

struct OverlaySetup {
    WindowLevel level = WindowLevel::ScreenSaver;
    InputHold hold = InputHold::KeyboardAndMouse;
};

// What can be seen where the window's pixels are not opaque.
enum class SeeThrough {
    No,      // nothing: the window must paint every pixel opaque
    Plain,   // what lies behind
    Blurred, // the same, blurred by the compositor
};

// Turns one top-level widget into a window that covers its screen. It follows
// the screen's size, is seen on every workspace and stands in no task list or
// window switcher. The widget outlives it.
//
// Order of a life: made (nothing on screen yet), orderFront(), orderOut(),
// destroyed. Destroying it orders out what still stands.
class OverlayWindow : public QObject {
    Q_OBJECT

public:
    virtual SeeThrough seeThrough() const = 0;
    // Maps the window, raises it and takes focus and input as asked.
    virtual void orderFront() = 0;
    // Unmaps it and gives focus and input back.
    virtual void orderOut() = 0;
    // Below ScreenSaver the window makes way for a dialog of the program and
    // lets go of the input; back at ScreenSaver it takes both again.
    virtual void setLevel(WindowLevel level) = 0;
    // The window stays where it is and lets go of all input that it holds from
    // others, until the next orderFront().
    virtual void letGo() = 0;
    // The instant of the last orderFront() in the clock of input events'
    // time stamps (milliseconds, wraps at 32 bits); nothing known: 0.
    virtual quint32 orderedFrontAt() const = 0;

signals:
    // The screen or the surface is gone for good. May be emitted more than once,
    // and from within orderFront().
    void lost();
};

class OverlayMaker {
public:
    virtual ~OverlayMaker() = default;
    OverlayMaker(const OverlayMaker&) = delete;
    OverlayMaker& operator=(const OverlayMaker&) = delete;

    // `window` is a top-level widget that was never shown.
    virtual std::unique_ptr<OverlayWindow> make(QWidget& window, QScreen& screen,
                                                const OverlaySetup& setup) = 0;

protected:
    OverlayMaker() = default;
};

} // namespace morrowleaf
