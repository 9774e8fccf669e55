// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/timing.h"
#include "platform/overlaywindow.h"

#include <QWidget>

namespace morrowleaf {

class Veil;

// The window of one showing: borderless, with an alpha of its own, its
// content filling it. Nothing is on screen before orderFront().
class QuoteWindow : public QWidget {
    Q_OBJECT

public:
    QuoteWindow(OverlayMaker& overlays, QScreen& screen, const OverlaySetup& setup);
    ~QuoteWindow() override;

    OverlayWindow& overlay() { return *overlay_; }

    // Takes the content over.
    void setContent(QWidget* content);
    // What to fade over where the window cannot be seen through.
    void setDesktop(const QImage& desktop); // device pixels of the whole window

    // 0...1. The window system is not needed for it: the window's own pixels
    // become translucent, or those of setDesktop() show through.
    void setAlpha(double alpha);
    double alpha() const;
    // Fades from the present alpha to 1, or to 0 and then calls `done`. Another
    // fade, or orderOut(), ends it without a call.
    void fadeIn(Timing& timing);
    void fadeOut(Timing& timing, std::function<void()> done);

    void orderFront();
    void orderOut();

signals:
    void closed(); // from outside; it has left the screen

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void fade(Timing& timing, double alpha, double seconds, double (*curve)(double),
              std::function<void()> done);

    std::unique_ptr<OverlayWindow> overlay_;
    QWidget* content_ = nullptr;
    Veil* veil_ = nullptr;
    Task fade_;
};

} // namespace morrowleaf
