// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QIcon>

namespace morrowleaf {

// The opening quotation mark for panels, sharp at the sizes they use, drawn in
// a tone that the desktop's panels are readable with.
QIcon panelSymbol();

// The same in one colour; empty when the symbol's file is missing.
QIcon symbolIn(const QColor& colour);

} // namespace morrowleaf
