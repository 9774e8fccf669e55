// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QScreen>
#include <QWidget>

#include <functional>

namespace morrowleaf {

// Keeps a window as large as its screen and tells when the screen is gone.
class ScreenFollower : public QObject {
public:
    ScreenFollower(QWidget& window, QScreen& screen, std::function<void()> onLost);

private:
    void lost();

    std::function<void()> onLost_;
};

} // namespace morrowleaf
