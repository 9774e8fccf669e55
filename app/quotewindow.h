// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/timing.h"
#include "platform/overlaywindow.h"

#include <QWidget>

namespace morrowleaf {

class Veil;

// The window of one showing: borderless, with an alpha of its own and filled by its
// content. orderFront() maps it. Main thread.
class QuoteWindow : public QWidget {
    Q_OBJECT

public:
    QuoteWindow(OverlayMaker& overlays, QScreen& screen, const OverlaySetup& setup);
    ~QuoteWindow() override;

    OverlayWindow& overlay() { return *overlay_; }

    // Takes ownership of `content`.
    void setContent(QWidget* content);
    // What to fade over if the desktop does not show through the window.
    void setDesktop(const QImage& desktop); // device pixels of the whole window

    // From 0 to 1. Also works without the window system: the window's own pixels become
    // translucent, or those of setDesktop() show through.
    void setAlpha(double alpha);
    double alpha() const { return alpha_; }
    // Fades from the current alpha to 1, or to 0 and then calls `done`. Another fade or
    // orderOut() cancels a fade without calling `done`.
    void fadeIn(Timing& timing);
    void fadeOut(Timing& timing, std::function<void()> done);

    void orderFront();
    void orderOut();

signals:
    void closed(); // by the window manager or by Qt; the window has left the screen

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void fade(Timing& timing, double alpha, double seconds, double (*curve)(double),
              std::function<void()> done);

    std::unique_ptr<OverlayWindow> overlay_;
    QWidget* content_ = nullptr;
    Veil* veil_ = nullptr;
    double alpha_ = 1;
    Task fade_;
};

} // namespace morrowleaf
