// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QSlider>

namespace morrowleaf {

// A combo box in the host's style. Ignores the wheel, which scrolls the form instead: the
// user would not notice a choice changed by scrolling.
class FormPicker : public QComboBox {
    Q_OBJECT

public:
    explicit FormPicker(QWidget* parent = nullptr);

protected:
    void wheelEvent(QWheelEvent* event) override;
};

// A line of text in the host's style. Wide enough for its placeholder, with less room beside
// it where there is none.
class FormField : public QLineEdit {
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    int neededWidth() const;
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
