// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/menuactions.h"

#include <QCoreApplication>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

MenuActions::MenuActions()
    : showQuote(QCoreApplication::translate("MenuActions", "Show Today's Quote"))
    , editAppearance(QCoreApplication::translate("MenuActions", "Edit Appearance…"))
    , openSettings(QCoreApplication::translate("MenuActions", "Settings…"))
    , quit(QCoreApplication::translate("MenuActions", "Quit")) {
    showQuote.setShortcut(QKeySequence(u"Ctrl+S"_s));
    editAppearance.setShortcut(QKeySequence(u"Ctrl+E"_s));
    openSettings.setShortcut(QKeySequence(u"Ctrl+,"_s));
    quit.setShortcut(QKeySequence(u"Ctrl+Q"_s));
    for (QAction* action : {&showQuote, &editAppearance, &openSettings, &quit}) {
        action->setShortcutVisibleInContextMenu(true);
    }
}

} // namespace morrowleaf
