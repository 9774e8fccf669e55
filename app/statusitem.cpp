// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/statusitem.h"

#include "app/symbolicon.h"

#include <QCursor>
#include <QEvent>
#include <QGuiApplication>

namespace morrowleaf {

namespace {

// A menu without a window to hang on can be placed on X11 alone.
bool canPopUpAnywhere() {
    return !QGuiApplication::platformName().startsWith("wayland");
}

} // namespace

StatusItem::StatusItem(const StatusActions& actions) {
    const auto add = [this](const QString& title, const QKeySequence& keys,
                            const std::function<void()>& action) {
        auto* entry = menu_.addAction(title);
        entry->setShortcut(keys);
        entry->setShortcutVisibleInContextMenu(true);
        QObject::connect(entry, &QAction::triggered, &menu_, action);
    };
    add("Show Today's Quote", QKeySequence("Ctrl+S"), actions.show);
    add("Edit Appearance…", QKeySequence("Ctrl+E"), actions.editAppearance);
    add("Settings…", QKeySequence("Ctrl+,"), actions.openSettings);
    menu_.addSeparator();
    add("Quit", QKeySequence("Ctrl+Q"), actions.terminate);

    icon_.setIcon(panelSymbol());
    icon_.setToolTip("Morrowleaf");
    icon_.setContextMenu(&menu_);
    QObject::connect(&icon_, &QSystemTrayIcon::activated, &menu_,
                     [this, show = actions.show](QSystemTrayIcon::ActivationReason reason) {
                         if (reason != QSystemTrayIcon::Trigger) {
                             return;
                         }
                         if (canPopUpAnywhere()) {
                             menu_.popup(QCursor::pos());
                         } else {
                             show();
                         }
                     });
    icon_.show();
    menu_.installEventFilter(this);
}

bool StatusItem::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        icon_.setIcon(panelSymbol());
    }
    return false;
}

} // namespace morrowleaf
