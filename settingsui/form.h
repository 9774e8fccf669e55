// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QVBoxLayout;

namespace morrowleaf {

// One section of a grouped form: a title and, beneath it, rows in a rounded frame,
// separated by thin lines. Takes its colours from the palette.
class FormCard : public QWidget {
    Q_OBJECT

public:
    FormCard(const QString& title, QWidget* parent = nullptr);

    void addRow(QWidget* row);
    // Adds a row with a label at the leading edge and a control at the other one.
    void addRow(const QString& label, QWidget* control);
    // Adds a row that belongs to the one above, without a line between them.
    void addContinuation(QWidget* row);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QVBoxLayout* column_;
    QWidget* frame_;
    QList<QWidget*> separated_; // rows with a line above
};

} // namespace morrowleaf
