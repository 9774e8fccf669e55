// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QFont;

namespace morrowleaf {

struct TextLayout;

// Gives each cluster of several characters (a ligature) the glyphs that stand in its
// place while only some of them are typed: those of the letters by themselves.
// `layout` is that of `text` in `face`. Costs one more layout, if there are ligatures.
void addBegunGlyphs(TextLayout& layout, const QString& text, const QFont& face);

} // namespace morrowleaf
