// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/menuactions.h"

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

MenuActions::MenuActions()
    : showQuote(u"Show Today's Quote"_s)
    , editAppearance(u"Edit Appearance…"_s)
    , openSettings(u"Settings…"_s)
    , quit(u"Quit"_s) {
    showQuote.setShortcut(QKeySequence(u"Ctrl+S"_s));
    editAppearance.setShortcut(QKeySequence(u"Ctrl+E"_s));
    openSettings.setShortcut(QKeySequence(u"Ctrl+,"_s));
    quit.setShortcut(QKeySequence(u"Ctrl+Q"_s));
    for (QAction* action : {&showQuote, &editAppearance, &openSettings, &quit}) {
        action->setShortcutVisibleInContextMenu(true);
    }
}

} // namespace morrowleaf
