// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>
#include <QSlider>

namespace morrowleaf {

// A combo box in the host's style. Ignores the wheel, which scrolls the form instead: the
// user would not notice a choice changed by scrolling.
class FormPicker : public QComboBox {
    Q_OBJECT

public:
    using QComboBox::QComboBox;

protected:
    void wheelEvent(QWheelEvent* event) override;
};

// A horizontal slider in the host's style. Its handle jumps to the position of a mouse
// press and can be dragged from there. Ignores the wheel, as FormPicker does.
//
// At an end of its range the slider may stand for a value beyond it.
class FormSlider : public QSlider {
    Q_OBJECT

public:
    explicit FormSlider(QWidget* parent = nullptr);

    // Sets the value as the user would.
    void moveHandle(int value);

signals:
    // The user has moved the handle to where it already was.
    void confirmed();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace morrowleaf
