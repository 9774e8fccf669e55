// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>
#include <QPointer>

#include <vector>

namespace morrowleaf {

class PickerMenu;

// A button that shows the chosen one of several entries and opens a menu of
// them. The menu is part of the same window: above a full-screen picture no
// other window is sure to be seen.
class MenuPicker : public QAbstractButton {
    Q_OBJECT

public:
    struct Entry {
        QString value;
        QString text;
    };
    MenuPicker(const QString& name, std::vector<Entry> entries, const QFont& face,
               QWidget* parent = nullptr);
    ~MenuPicker() override;

    const std::vector<Entry>& entries() const { return entries_; }
    // Empty when nothing is chosen.
    QString currentText() const;
    // Shows the entry with that value, or none; not announced.
    void showValue(const QString& value);
    // Chooses as the user would.
    void choose(int index);

    bool isOpen() const;
    void open();
    void close();
    PickerMenu* menu() const;

    QSize sizeHint() const override { return {120, 30}; }

signals:
    void chosen(const QString& value);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    std::vector<Entry> entries_;
    QFont face_;
    int current_ = -1;
    QPointer<PickerMenu> menu_;
};

} // namespace morrowleaf
