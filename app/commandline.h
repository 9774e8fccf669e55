// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

namespace morrowleaf {

enum class Mode { SelfTest, RegisterLogin, Help, Version, Desktop };

// The mode that the arguments ask for, the first of the above if they ask for several;
// unknown arguments are ignored.
Mode modeFor(const QStringList& arguments);

// What --help prints, in the language of the user, without the last line break.
QString helpText();
// What --version prints: "Morrowleaf" and the version.
QString versionText();

} // namespace morrowleaf
