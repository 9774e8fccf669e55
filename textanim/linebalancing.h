// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace morrowleaf {

// Cuts a text into lines of nearly equal length, at spaces (U+0020) only; words
// are joined by single spaces. `target` is the preferred number of user-perceived
// characters in a line; 0 is a fatal error. A text without words gives no lines.
QStringList balancedLines(const QString& text, int target = 32);

} // namespace morrowleaf
