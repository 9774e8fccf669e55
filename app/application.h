// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/loginitem.h"

#include <QString>

namespace morrowleaf {

// Registers the login item. Returns the line to print for the user.
[[nodiscard]] QString registerLogin(LoginItem& item);

// Runs the whole program in the mode that the arguments ask for. Returns the exit status:
// 1 if the desktop mode has no display to show anything on, and 0 otherwise. The modes that
// only print return 0 even if what they tried has failed. May end the process itself.
int runApplication(int argc, char** argv);

} // namespace morrowleaf
