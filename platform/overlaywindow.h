// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QObject>

#include <memory>

class QScreen;
class QWidget;

namespace morrowleaf {

// The height of a window in the desktop's stacking order.
enum class WindowLevel {
    Normal,      // among ordinary windows
    ScreenSaver, // above panels, docks and the windows of all other programs
};

// The input that an overlay takes while it is in front.
enum class InputHold {
    FocusOnly,        // keyboard focus, without any grab
    KeyboardIfNeeded, // keyboard focus; also a keyboard grab if the focus does not stay
    KeyboardAndMouse, // keyboard focus and, for some seconds, a grab of both devices
};

struct OverlaySetup {
    WindowLevel level = WindowLevel::ScreenSaver;
    InputHold hold = InputHold::KeyboardAndMouse;
};

// What is visible through pixels of the window that are not opaque.
enum class SeeThrough {
    No,      // nothing; paint every pixel opaque
    Plain,   // the desktop behind the window
    Blurred, // the same, blurred by the compositor
    // The desktop behind what setBackdrop() puts there:
    SystemBlur,  // a blur
    SystemGlass, // a blur or glass
};

// What the system draws between the desktop and the pixels of a window.
struct SystemBackdrop {
    enum class Kind { None, Blur, Glass, ClearGlass };

    Kind kind = Kind::None;
    QColor tint;        // with its opacity
    double opacity = 1; // of everything, 0...1

    bool operator==(const SystemBackdrop&) const = default;
};

// Turns one top-level widget into a window that covers its screen: borderless,
// on every workspace, in no task list or window switcher. It follows the size
// of the screen. Main thread.
//
// Order of calls: created (not mapped yet), orderFront(), orderOut(), destroyed. The
// destructor orders the window out; the widget must outlive it.
class OverlayWindow : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // Constant during the life of this object.
    virtual SeeThrough seeThrough() const = 0;
    // Gives the whole window an alpha of 0...1, with what the system draws in it. Returns
    // false, and does nothing, if the window's pixels must have it instead.
    [[nodiscard]] virtual bool setAlpha(double /*alpha*/) { return false; }
    // Only has an effect for SystemBlur and SystemGlass.
    virtual void setBackdrop(const SystemBackdrop& /*backdrop*/) {}
    // Maps the window, raises it and takes focus and input as set up.
    virtual void orderFront() = 0;
    // Unmaps the window and returns the focus to the window that had it before.
    virtual void orderOut() = 0;
    // At Normal the window moves below a dialog of this program and releases
    // its grabs; back at ScreenSaver it returns to the front with them. If the window
    // manager does not know the window, dialogs belong to its transient parent meanwhile.
    virtual void setLevel(WindowLevel level) = 0;
    // Releases all grabs until the next retakeInput() or orderFront(); the window stays
    // mapped.
    virtual void releaseInput() = 0;
    // Takes focus and input again if releaseInput() has released them.
    virtual void retakeInput() {}
    // When orderFront() was last called, on the clock of input events' time
    // stamps: milliseconds that wrap at 32 bits. 0 if that is unknown.
    virtual quint32 orderedFrontAt() const = 0;

signals:
    // The screen or the surface is gone for good. May be emitted from within orderFront(),
    // so destroy the window later, not in the slot.
    void lost();
    // The user has clicked into a window on another screen. Only while KeyboardAndMouse is
    // set up but the grab of the mouse has ended.
    void clickedElsewhere();
};

class OverlayMaker {
public:
    virtual ~OverlayMaker() = default;
    OverlayMaker(const OverlayMaker&) = delete;
    OverlayMaker& operator=(const OverlayMaker&) = delete;

    // `window` is a top-level widget that was never shown and outlives the result; this
    // sets its flags, attributes, screen and geometry.
    virtual std::unique_ptr<OverlayWindow> make(QWidget& window, QScreen& screen,
                                                const OverlaySetup& setup) = 0;

protected:
    OverlayMaker() = default;
};

} // namespace morrowleaf
