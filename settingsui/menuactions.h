// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>

namespace morrowleaf {

// What the user can ask the program for, with titles and shortcuts. The tray
// menu and the settings window offer the same actions; connect to their
// triggered() to carry them out. The shortcuts work in an open menu only.
struct MenuActions {
    MenuActions();

    QAction showQuote;
    QAction editAppearance;
    QAction openSettings;
    QAction quit;
};

} // namespace morrowleaf
