// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

namespace morrowleaf {

// Runs as the program of the desktop until the user quits, or hands the
// arguments to the instance that runs already. Gives the exit status.
int runOnDesktop(int& argc, char** argv, const QStringList& arguments);

} // namespace morrowleaf
