// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QMenu>
#include <QSystemTrayIcon>

namespace morrowleaf {

struct MenuActions;

// The program's symbol in the panel, with its menu. Make it only while a panel
// is present: Qt looks for one once, when the first item is made.
class StatusItem : public QObject {
    Q_OBJECT

public:
    // `actions` outlive the item.
    explicit StatusItem(MenuActions& actions);

    const QMenu& menu() const { return menu_; }

protected:
    // Follows the desktop when it turns dark or light.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void handleClick(QSystemTrayIcon::ActivationReason reason, QAction& showQuote);

    QMenu menu_;
    QSystemTrayIcon icon_;
};

} // namespace morrowleaf
