// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QWidget>

class QListWidget;

namespace morrowleaf {

// The open menu of a picker, laid over its window. It takes the keyboard and
// the mouse before anything else in the program: keys and presses that close
// it do nothing more.
class PickerMenu : public QWidget {
    Q_OBJECT

public:
    PickerMenu(const QString& name, const QStringList& texts, int current, const QFont& font,
               QWidget* picker);

    void popUp();
    // Gives the keyboard back and goes away, later, when no event uses it.
    void retire();
    QListWidget* list() const { return list_; }

signals:
    void picked(int index);
    void dismissed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool keyPressed(int key);
    QRect place() const;

    QPointer<QWidget> picker_;
    QPointer<QWidget> focusBefore_;
    QListWidget* list_;
};

} // namespace morrowleaf
