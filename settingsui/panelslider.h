// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace morrowleaf {

// A slider over a closed range of reals, without steps. The mouse takes the
// handle to where it presses; arrow keys move it by a hundredth of the range,
// page keys by a tenth.
class PanelSlider : public QWidget {
    Q_OBJECT

public:
    PanelSlider(double lowest, double highest, QWidget* parent = nullptr);

    double lowest() const { return lowest_; }
    double highest() const { return highest_; }
    double value() const { return value_; }
    // Shows a value, kept within the range; not announced.
    void showValue(double value);
    // Moves as the user would: kept within the range and announced.
    void moveTo(double value);

    QSize sizeHint() const override { return {120, 24}; }

    // How the value is told to those who cannot see it.
    QString valueText() const { return valueText_; }
    void setValueText(const QString& text) { valueText_ = text; }

signals:
    void moved(double value);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    double handleX() const;
    double valueAt(double x) const;

    double lowest_;
    double highest_;
    double value_;
    double grip_ = 0; // from the handle's middle to where the mouse holds it
    bool held_ = false;
    QString valueText_;
};

} // namespace morrowleaf
