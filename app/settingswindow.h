// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMainWindow>
#include <QRect>

namespace morrowleaf {

// The window around the settings view: titled, closable, above ordinary
// windows, as large as the view. Closing hides it and never ends the program.
class SettingsWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit SettingsWindow(QWidget* view);

    // Where it belongs in the part of a screen that panels leave free; to be
    // said before it is first shown.
    void place(const QRect& available);

    // Comes to the front, also out of an icon, and takes the keyboard.
    void bringToFront();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void moveIntoPlace(const QSize& frame);

    QRect available_; // empty once it stands where it belongs
};

// Where the top left corner of the window with its frame belongs in the part
// of the screen that panels leave free: near the left edge, the bottom 400
// points below the middle, moved as little as needed to lie whole in there.
QPoint settingsWindowOrigin(const QRect& available, const QSize& frame);

} // namespace morrowleaf
