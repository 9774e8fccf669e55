// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QRawFont;

namespace morrowleaf {

// The family in which emoji are shaped; empty if no face that draws them in colour is
// installed. It has the characters, ligatures and widths of that face, but no pictures:
// in a face of bitmaps, finding the width of a glyph decodes its picture each time.
// Call it on the main thread first.
QString emojiFamily();

// The face from which the glyphs of `face` are drawn: itself, unless it is that of
// emojiFamily(). The glyphs have the same indexes there.
QRawFont drawnFace(const QRawFont& face);

} // namespace morrowleaf
