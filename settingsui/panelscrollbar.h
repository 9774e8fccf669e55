// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QScrollBar>

namespace morrowleaf {

// A slim vertical scroll bar without a trough.
class PanelScrollBar : public QScrollBar {
    Q_OBJECT

public:
    static constexpr int thickness = 9; // points

    explicit PanelScrollBar(QWidget* parent);
    QSize sizeHint() const override { return {thickness, 40}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QRectF thumb() const;
    double grip_ = -1; // within the thumb while it is held
};

} // namespace morrowleaf
