// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/panelslider.h"

#include "settingsui/panelstyle.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace morrowleaf {
namespace {

constexpr double handleRadius = 7.5; // points
constexpr double sideRoom = handleRadius + PanelStyle::focusRoom;

} // namespace

PanelSlider::PanelSlider(double lowest, double highest, QWidget* parent)
    : QWidget(parent)
    , lowest_(lowest)
    , highest_(highest)
    , value_(lowest) {
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PanelSlider::showValue(double value) {
    value = std::isnan(value) ? lowest_ : std::clamp(value, lowest_, highest_);
    if (value != value_) {
        value_ = value;
        update();
        QAccessibleValueChangeEvent event(this, value_);
        QAccessible::updateAccessibility(&event);
    }
}

void PanelSlider::moveTo(double value) {
    const double before = value_;
    showValue(value);
    if (value_ != before) {
        emit moved(value_);
    }
}

double PanelSlider::handleX() const {
    return sideRoom + (value_ - lowest_) / (highest_ - lowest_) * (width() - 2 * sideRoom);
}

double PanelSlider::valueAt(double x) const {
    const double room = width() - 2 * sideRoom;
    return lowest_ + (room > 0 ? (x - sideRoom) / room : 0) * (highest_ - lowest_);
}

void PanelSlider::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double middle = height() / 2.0;
    const double x = handleX();
    const QRectF track(sideRoom - handleRadius, middle - 1.5,
                       width() - 2 * (sideRoom - handleRadius), 3);
    painter.setBrush(PanelStyle::ink(0.2));
    painter.drawRoundedRect(track, 1.5, 1.5);
    painter.setBrush(PanelStyle::ink(0.75));
    painter.drawRoundedRect(QRectF(track.left(), track.top(), x - track.left(), 3), 1.5, 1.5);
    const QRectF handle(x - handleRadius, middle - handleRadius, 2 * handleRadius,
                        2 * handleRadius);
    painter.setBrush(QColor(0, 0, 0, 70));
    painter.drawEllipse(handle.adjusted(-0.5, 0.5, 0.5, 1.5));
    painter.setBrush(held_ ? QColor(225, 225, 228) : QColor(248, 248, 250));
    painter.drawEllipse(handle);
    if (hasFocus()) {
        paintFocusRing(painter, handle, handleRadius);
    }
}

void PanelSlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const double x = event->position().x();
    // Holding the handle anywhere must not make it jump.
    grip_ = std::abs(x - handleX()) <= handleRadius ? x - handleX() : 0;
    held_ = true;
    update();
    moveTo(valueAt(x - grip_));
}

void PanelSlider::mouseMoveEvent(QMouseEvent* event) {
    if (held_) {
        moveTo(valueAt(event->position().x() - grip_));
    }
}

void PanelSlider::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        held_ = false;
        update();
    }
}

void PanelSlider::keyPressEvent(QKeyEvent* event) {
    const double range = highest_ - lowest_;

    switch (event->key()) {
    case Qt::Key_Right:
        return moveTo(value_ + range / 100);
    case Qt::Key_Left:
        return moveTo(value_ - range / 100);
    case Qt::Key_Up:
        return moveTo(value_ + range / 100);
    case Qt::Key_Down:
        return moveTo(value_ - range / 100);
    case Qt::Key_PageUp:
        return moveTo(value_ + range / 10);
    case Qt::Key_PageDown:
        return moveTo(value_ - range / 10);
    case Qt::Key_Home:
        return moveTo(lowest_);
    case Qt::Key_End:
        return moveTo(highest_);
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace morrowleaf
