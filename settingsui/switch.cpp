// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/switch.h"

#include "settingsui/panelstyle.h"

#include <QFontMetrics>
#include <QPainter>

namespace morrowleaf {
namespace {

QColor withAlpha(QColor color, double alpha) {
    color.setAlphaF(float(alpha));
    return color;
}

} // namespace

Switch::Switch(const QString& text, Size size, QWidget* parent)
    : QCheckBox(text, parent)
    , track_(size == Size::Small ? QSize(30, 17) : QSize(38, 22)) {
    setFocusPolicy(Qt::TabFocus);
}

QSize Switch::sizeHint() const {
    const QFontMetrics metrics(font());
    return {metrics.horizontalAdvance(text()) + 12 + track_.width() + overhang,
            qMax(metrics.height(), track_.height() + 2 * overhang)};
}

void Switch::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, text());

    const QRectF track(width() - overhang - track_.width(), (height() - track_.height()) / 2.0,
                       track_.width(), track_.height());
    const double radius = track.height() / 2;
    const QColor ink = palette().color(QPalette::Active, QPalette::WindowText);
    const bool on = isChecked();
    painter.setOpacity(isEnabled() ? 1 : 0.4);
    painter.setPen(Qt::NoPen);
    painter.setBrush(on ? palette().color(QPalette::Active, QPalette::Highlight)
                        : withAlpha(ink, isDown() ? 0.3 : 0.22));
    painter.drawRoundedRect(track, radius, radius);

    const double gap = 2;
    const double knob = track.height() - 2 * gap;
    const QRectF place(on ? track.right() - gap - knob : track.left() + gap, track.top() + gap,
                       knob, knob);
    painter.setBrush(on ? palette().color(QPalette::Active, QPalette::HighlightedText)
                        : QColor(Qt::white));
    painter.drawEllipse(place);
    painter.setOpacity(1);
    if (hasFocus()) {
        paintFocusRing(painter, track, radius);
    }
}

} // namespace morrowleaf
