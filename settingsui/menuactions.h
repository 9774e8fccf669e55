// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>

namespace morrowleaf {

// The actions that the tray menu and the settings window offer, with titles and
// shortcuts. Connect to triggered() to carry them out. The shortcuts work in an open menu
// only.
struct MenuActions {
    MenuActions();

    QAction showQuote;
    QAction editAppearance;
    QAction openSettings;
    QAction quit;
};

} // namespace morrowleaf
