// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/screenfollower.h"

#include <QGuiApplication>

#include <utility>

namespace morrowleaf {

ScreenFollower::ScreenFollower(QWidget& window, QScreen& screen, std::function<void()> onLost)
    : onLost_(std::move(onLost)) {
    connect(&screen, &QScreen::geometryChanged, this, [this, &window](const QRect& geometry) {
        // The last monitor that goes leaves a screen without an area.
        if (geometry.isEmpty()) {
            lost();
        } else {
            window.setGeometry(geometry);
        }
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this,
            [this, gone = &screen](const QScreen* removed) {
                if (removed == gone) {
                    lost();
                }
            });
}

void ScreenFollower::lost() {
    if (const auto call = std::exchange(onLost_, nullptr)) {
        call();
    }
}

} // namespace morrowleaf
