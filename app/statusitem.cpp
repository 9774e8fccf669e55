// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/statusitem.h"

#include "app/traysymbol.h"
#include "settingsui/menuactions.h"

#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

StatusItem::StatusItem(MenuActions& actions, const TrayHost& host)
    : host_(host) {
    menu_.addActions({&actions.showQuote, &actions.editAppearance, &actions.openSettings});
    menu_.addSeparator();
    menu_.addAction(&actions.quit);

    icon_.setIcon(symbol());
    icon_.setToolTip(u"Morrowleaf"_s);
    icon_.setContextMenu(&menu_);
    connect(&icon_, &QSystemTrayIcon::activated, this,
            [this, &actions](QSystemTrayIcon::ActivationReason reason) {
                handleClick(reason, actions.showQuote);
            });
    icon_.show();
    menu_.installEventFilter(this);
}

void StatusItem::handleClick(QSystemTrayIcon::ActivationReason reason, QAction& showQuote) {
    if (reason != QSystemTrayIcon::Trigger) {
        return;
    }
    switch (host_.click()) {
    case TrayHost::Click::PopsUpMenu:
        menu_.popup(QCursor::pos());
        break;
    case TrayHost::Click::ShowsQuote:
        showQuote.trigger();
        break;
    case TrayHost::Click::OpensMenu:
        break;
    }
}

QIcon StatusItem::symbol() const {
    const QIcon tinted = host_.tintedSymbol();
    // The colour of the palette is legible on the panels of most desktops.
    return !tinted.isNull() ? tinted
                            : traySymbol(QGuiApplication::palette().color(QPalette::WindowText));
}

bool StatusItem::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        icon_.setIcon(symbol());
    }
    return false;
}

} // namespace morrowleaf
