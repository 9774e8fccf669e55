// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>
#include <QWheelEvent>

namespace morrowleaf {

// A picker in the host's style. The wheel over it scrolls what lies around: a
// choice that changed in passing would go unnoticed.
class FormPicker : public QComboBox {
    Q_OBJECT

public:
    using QComboBox::QComboBox;

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

} // namespace morrowleaf
