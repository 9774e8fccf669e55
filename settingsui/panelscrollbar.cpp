// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/panelscrollbar.h"

#include "settingsui/panelstyle.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace morrowleaf {

PanelScrollBar::PanelScrollBar(QWidget* parent)
    : QScrollBar(Qt::Vertical, parent) {
    setFixedWidth(thickness);
    setFocusPolicy(Qt::NoFocus);
}

QRectF PanelScrollBar::thumb() const {
    const double range = maximum() - minimum();
    const double room = height() - 4;
    const double length =
        std::min(room, std::max(28.0, room * pageStep() / (range + std::max(pageStep(), 1))));
    const double at = range > 0 ? (value() - minimum()) / range : 0;
    return {2, 2 + at * (room - length), 4, length};
}

void PanelScrollBar::paintEvent(QPaintEvent* /*event*/) {
    if (maximum() <= minimum()) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(PanelStyle::ink(grip_ >= 0 ? 0.5 : underMouse() ? 0.4 : 0.24));
    painter.drawRoundedRect(thumb(), 2, 2);
}

void PanelScrollBar::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const QRectF now = thumb();
    const double y = event->position().y();
    grip_ = y >= now.top() && y <= now.bottom() ? y - now.top() : now.height() / 2;
    mouseMoveEvent(event);
}

void PanelScrollBar::mouseMoveEvent(QMouseEvent* event) {
    const double room = height() - 4 - thumb().height();
    if (grip_ >= 0 && room > 0) {
        setValue(minimum() +
                 qRound((event->position().y() - grip_ - 2) / room * (maximum() - minimum())));
    }
}

void PanelScrollBar::mouseReleaseEvent(QMouseEvent* /*event*/) {
    grip_ = -1;
    update();
}

} // namespace morrowleaf
