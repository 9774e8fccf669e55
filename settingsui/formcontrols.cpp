// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/formcontrols.h"

#include <QMouseEvent>
#include <QStyleOptionSlider>
#include <QWheelEvent>

namespace morrowleaf {

void FormPicker::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

FormSlider::FormSlider(QWidget* parent)
    : QSlider(Qt::Horizontal, parent) {
    connect(this, &QSlider::actionTriggered, this, [this] {
        if (sliderPosition() == value()) {
            emit confirmed();
        }
    });
}

void FormSlider::moveHandle(int value) {
    if (value == this->value()) {
        emit confirmed();
    }
    setValue(value);
}

void FormSlider::mousePressEvent(QMouseEvent* event) {
    QStyleOptionSlider option;
    initStyleOption(&option);
    const auto part = [&](QStyle::SubControl control) {
        return style()->subControlRect(QStyle::CC_Slider, &option, control, this);
    };
    const QRect handle = part(QStyle::SC_SliderHandle);
    const QPoint at = event->position().toPoint();
    if (event->button() == Qt::LeftButton && !handle.contains(at)) {
        const QRect groove = part(QStyle::SC_SliderGroove);
        moveHandle(QStyle::sliderValueFromPosition(
            minimum(), maximum(), at.x() - groove.x() - handle.width() / 2,
            groove.width() - handle.width(), option.upsideDown));
    }
    QSlider::mousePressEvent(event);
}

void FormSlider::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

} // namespace morrowleaf
