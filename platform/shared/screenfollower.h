// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QScreen;
class QWidget;

namespace morrowleaf {

// Keeps a window as large as its screen and reports when that screen is gone. `window`
// and `screen` must outlive it; a screen that Qt removes is an exception.
class ScreenFollower : public QObject {
    Q_OBJECT

public:
    ScreenFollower(QWidget& window, QScreen& screen);

signals:
    void lost(); // emitted once at most

private:
    void loseScreen();

    bool lost_ = false;
};

} // namespace morrowleaf
