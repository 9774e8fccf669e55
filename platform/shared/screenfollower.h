// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QScreen>
#include <QWidget>

namespace morrowleaf {

// Keeps a window as large as its screen for as long as both exist.
class ScreenFollower : public QObject {
    Q_OBJECT

public:
    ScreenFollower(QWidget& window, QScreen& screen);

signals:
    void lost(); // the screen was removed or has no area any more
};

} // namespace morrowleaf
