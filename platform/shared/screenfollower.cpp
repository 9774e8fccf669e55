// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/screenfollower.h"

#include <QGuiApplication>

namespace morrowleaf {

ScreenFollower::ScreenFollower(QWidget& window, QScreen& screen) {
    connect(&screen, &QScreen::geometryChanged, this, [this, &window](const QRect& geometry) {
        // The last monitor that goes leaves a screen without an area.
        if (geometry.isEmpty()) {
            emit lost();
        } else {
            window.setGeometry(geometry);
        }
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this,
            [this, gone = &screen](const QScreen* removed) {
                if (removed == gone) {
                    emit lost();
                }
            });
}

} // namespace morrowleaf
