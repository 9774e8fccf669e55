// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMenu>
#include <QSystemTrayIcon>

#include <functional>

namespace morrowleaf {

struct StatusActions {
    std::function<void()> show;
    std::function<void()> editAppearance;
    std::function<void()> openSettings;
    std::function<void()> terminate;
};

// The program's symbol in the panel, with its menu.
class StatusItem : public QObject {
    Q_OBJECT

public:
    explicit StatusItem(const StatusActions& actions);

    QMenu& menu() { return menu_; }
    const QMenu& menu() const { return menu_; }

protected:
    // Follows the desktop when it turns dark or light.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QMenu menu_;
    QSystemTrayIcon icon_;
};

} // namespace morrowleaf
