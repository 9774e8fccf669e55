// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/panelbutton.h"

#include "settingsui/panelstyle.h"

#include <QPainter>

namespace morrowleaf {

PanelButton::PanelButton(const QString& text, Kind kind, QWidget* parent)
    : QPushButton(text, parent)
    , kind_(kind) {
    setFocusPolicy(Qt::TabFocus);
    setAutoDefault(false);
}

QSize PanelButton::sizeHint() const {
    return {fontMetrics().horizontalAdvance(text()) + 2 * sidePadding, 28};
}

void PanelButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF shape(rect());
    const bool near = underMouse() || isDown();
    if (kind_ == Kind::Default) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(PanelStyle::ink(isDown() ? 0.7 : near ? 0.96 : 0.88));
        painter.drawRoundedRect(shape, 7, 7);
        painter.setPen(QColor(20, 20, 24));
    } else {
        painter.setPen(PanelStyle::ink(isDown() ? 0.45 : near ? 0.9 : 0.6));
    }
    painter.drawText(shape, Qt::AlignCenter, text());
    if (hasFocus()) {
        painter.setPen(QPen(PanelStyle::focusRing(), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(shape.adjusted(1, 1, -1, -1), 7, 7);
    }
}

} // namespace morrowleaf
