// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QIcon>

namespace morrowleaf {

// The symbol of the status item in a colour, in all sizes that panels ask for. A thin edge
// of the opposite brightness makes it legible on panels of any colour.
QIcon traySymbol(const QColor& colour);

} // namespace morrowleaf
