// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>
#include <QSlider>

namespace morrowleaf {

// A choice among a few, in the host's style. Ignores the wheel, which scrolls
// what lies around: a choice that changed in passing would go unnoticed.
class FormPicker : public QComboBox {
    Q_OBJECT

public:
    using QComboBox::QComboBox;

protected:
    void wheelEvent(QWheelEvent* event) override;
};

// A horizontal slider in the host's style. Its handle comes to where the mouse
// presses and can be dragged from there. Ignores the wheel, as FormPicker does.
class FormSlider : public QSlider {
    Q_OBJECT

public:
    explicit FormSlider(QWidget* parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace morrowleaf
