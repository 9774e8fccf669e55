// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QRasterWindow>
#include <QTimer>

class QScreen;

namespace morrowleaf {

// Finds out on which screen the window manager places a new window: maps one that cannot be
// seen. On Xwayland nothing else tells where the user is, because windows of Wayland have
// the focus and the pointer without its knowledge. Main thread.
class Placement : public QObject {
    Q_OBJECT

public:
    Placement();

signals:
    // Null if the window manager has not placed the window within a second. Emitted once.
    void found(QScreen* screen);

protected:
    bool eventFilter(QObject* window, QEvent* event) override;

private:
    void look();

    QRasterWindow window_;
    QTimer settled_;
};

} // namespace morrowleaf
