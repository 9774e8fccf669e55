// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/screenfollower.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <utility>

namespace morrowleaf {

ScreenFollower::ScreenFollower(QWidget& window, QScreen& screen) {
    connect(&screen, &QScreen::geometryChanged, this, [this, &window](const QRect& geometry) {
        // With all monitors off, Qt keeps a screen with an empty geometry.
        if (geometry.isEmpty()) {
            loseScreen();
        } else {
            window.setGeometry(geometry);
        }
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this,
            [this, followed = &screen](const QScreen* removed) {
                if (removed == followed) {
                    loseScreen();
                }
            });
}

void ScreenFollower::loseScreen() {
    if (!std::exchange(lost_, true)) {
        emit lost();
    }
}

} // namespace morrowleaf
