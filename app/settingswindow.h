// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/floater.h"

#include <QMainWindow>
#include <QRect>

namespace morrowleaf {

// The window around the settings view: titled, closable, above ordinary windows, as large
// as the view or, on a low screen, as high as that leaves room. Closing hides it and does not end
// the program.
class SettingsWindow : public QMainWindow {
    Q_OBJECT

public:
    // `floater` must outlive the window.
    SettingsWindow(QWidget* view, Floater& floater);

    // Places the window in `available`, the part of a screen that panels leave free, in
    // points. Call before it is first shown.
    void place(const QRect& available);
    // Makes the window as low as it must be to fit in there. Call when it may have been
    // shown on another screen.
    void fitInto(const QRect& available);

    // Restores the window if it is minimized, raises it and activates it.
    void bringToFront();

    // Gives up the place above ordinary windows, so that a dialog of another program can
    // come in front, and takes it again.
    void joinOrdinaryWindows();
    void riseAboveOrdinaryWindows();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void lowerInto(const QRect& available, const QSize& frame);
    void moveInto(const QRect& available, const QSize& frame);

    Floater& floater_;
    QRect available_; // empty once the window has been placed
};

// The position of the top left corner of a window whose frame has the size `frame`: near
// the left edge of `available`, its bottom 400 points below the middle, moved as little
// as needed to lie inside. All in points.
QPoint settingsWindowOrigin(const QRect& available, const QSize& frame);

} // namespace morrowleaf
