// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>
#include <QPointer>

#include <vector>

class QListWidget;

namespace morrowleaf {

// The open menu of a MenuPicker, above everything else in its window. It filters the keys
// and presses of the whole program; those that close it have no other effect.
class PickerMenu : public QWidget {
    Q_OBJECT

public:
    PickerMenu(const QString& name, const QStringList& texts, int current, const QFont& font,
               QWidget* picker);

    void popUp();
    // Hides the menu, returns the focus and deletes the menu later, because one of its own
    // event handlers may be the caller.
    void retire();
    QListWidget* list() const { return list_; }

signals:
    void picked(int index);
    void dismissed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool handleKey(int key);
    QRect findPlace() const;

    QPointer<QWidget> picker_;
    QPointer<QWidget> focusBefore_;
    QListWidget* list_;
};

// A button that shows the chosen entry and opens a menu of all entries. The menu is a
// child of the same window, because another window might not be visible above a
// full-screen one.
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
    // Empty if no entry is chosen.
    QString currentText() const;
    // Shows the entry with that value, or none if no entry has it. Emits no signal.
    void showValue(const QString& value);
    // Chooses an entry as the user would; ignores an index out of range.
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
