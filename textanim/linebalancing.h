// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace morrowleaf {

// Cuts a text into lines of nearly equal length, at U+0020 only; `target` is
// the preferred number of characters in a line and not 0.
QStringList balancedLines(const QString& text, int target = 32);

} // namespace morrowleaf
