// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/trayhost.h"

#include <QIcon>
#include <QMenu>
#include <QSystemTrayIcon>

namespace morrowleaf {

struct MenuActions;

// The program's symbol in the tray, with its menu. Create it only while a tray is
// present: Qt looks for one only once, when the first item is created.
class StatusItem : public QObject {
    Q_OBJECT

public:
    // `actions` and `host` must outlive the item.
    StatusItem(MenuActions& actions, const TrayHost& host);

    const QMenu& menu() const { return menu_; }

protected:
    // Redraws the symbol when the desktop changes between light and dark.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void handleClick(QSystemTrayIcon::ActivationReason reason, QAction& showQuote);
    QIcon symbol() const;

    const TrayHost& host_;
    QMenu menu_;
    QSystemTrayIcon icon_;
};

} // namespace morrowleaf
