// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/formcontrols.h"

#include <QMouseEvent>
#include <QStyleOptionSlider>
#include <QTimer>
#include <QWheelEvent>

namespace morrowleaf {

FormPicker::FormPicker(QWidget* parent)
    : QComboBox(parent) {
    // Screen readers do not ask for the value of a combo box that has a name.
    connect(this, &QComboBox::currentTextChanged, this, &QWidget::setAccessibleDescription);
}

void FormPicker::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

QSize FormField::sizeHint() const {
    constexpr int usualWidth = 330; // points
    return {qMax(usualWidth, neededWidth() + 8), QLineEdit::sizeHint().height()};
}

QSize FormField::minimumSizeHint() const {
    return {neededWidth(), QLineEdit::minimumSizeHint().height()};
}

int FormField::neededWidth() const {
    constexpr int frame = 8;
    const QMargins margins = textMargins();
    return fontMetrics().horizontalAdvance(placeholderText()) + margins.left() + margins.right() +
           frame;
}

// A screen reader does not name the field if it hears of its text before it hears of the
// field, of which Qt tells after this event.
void FormField::focusInEvent(QFocusEvent* event) {
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::TabFocusReason && reason != Qt::BacktabFocusReason) {
        QLineEdit::focusInEvent(event);
        return;
    }
    QFocusEvent quiet(QEvent::FocusIn, Qt::OtherFocusReason);
    QLineEdit::focusInEvent(&quiet);
    QTimer::singleShot(0, this, [this] {
        if (hasFocus()) {
            selectAll();
        }
    });
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
