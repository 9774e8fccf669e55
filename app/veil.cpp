// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/veil.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace morrowleaf {

Veil::Veil(QWidget* window)
    : QWidget(window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void Veil::setDesktop(const QImage& desktop) {
    desktop_ = desktop;
    update();
}

void Veil::setAlpha(double alpha) {
    alpha_ = std::clamp(alpha, 0.0, 1.0);
    setVisible(alpha_ < 1);
    update();
}

void Veil::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    if (desktop_.isNull()) {
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.fillRect(event->rect(), QColor::fromRgbF(0, 0, 0, static_cast<float>(alpha_)));
        return;
    }
    painter.setOpacity(1 - alpha_);
    painter.setClipRect(event->rect());
    painter.drawImage(rect(), desktop_);
}

} // namespace morrowleaf
