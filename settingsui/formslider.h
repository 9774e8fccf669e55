// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSlider>

namespace morrowleaf {

// A horizontal slider in the host's style whose handle comes to where the
// mouse presses, and can be dragged from there.
class FormSlider : public QSlider {
    Q_OBJECT

public:
    explicit FormSlider(QWidget* parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override; // scrolls what lies around
};

} // namespace morrowleaf
