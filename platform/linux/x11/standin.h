// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QRasterWindow>
#include <QTimer>

#include <functional>

namespace morrowleaf {

// A full-screen window with the picture of an overlay, which takes its place while a dialog
// is open. The window manager knows it, unlike the overlay, so a dialog can belong to it
// and stand above it: most compositors draw windows that they do not manage above all
// others. Main thread.
class StandIn : public QRasterWindow {
    Q_OBJECT

public:
    // `picture` is in device pixels of the whole screen.
    StandIn(QScreen& screen, const QImage& picture);

    // Shows the window and calls `then` when the desktop has drawn it.
    void present(std::function<void()> then);

protected:
    void paintEvent(QPaintEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QImage picture_;
    std::function<void()> then_;
    bool wasExposed_ = false;
    QTimer drawn_;
};

} // namespace morrowleaf
