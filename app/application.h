// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/loginitem.h"

#include <QStringList>

namespace morrowleaf {

enum class Mode { SelfTest, RegisterLogin, Desktop };

// The mode that the arguments ask for; unknown arguments are ignored.
Mode modeFor(const QStringList& arguments);

// Registers the login item. Returns the line to print for the user.
[[nodiscard]] QString registerLogin(LoginItem& item);

// Runs the whole program in the mode that the arguments ask for. Returns the exit status:
// 0, or 1 when the desktop mode finds no display.
int runApplication(int argc, char** argv);

} // namespace morrowleaf
