// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QFont;

namespace morrowleaf {

struct TextRow;

// Gives each cluster of several characters (a ligature) the glyphs that stand in its
// place while only some of them are typed: those of the letters by themselves.
// `text`, in `face`, is all that the row was made of; it begins with the character
// `firstCharacter`. Costs one more layout, if there are ligatures.
void addBegunGlyphs(TextRow& row, const QString& text, qsizetype firstCharacter, const QFont& face);

} // namespace morrowleaf
