// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QStringView>

namespace morrowleaf {

// Counts user-perceived characters, which are extended grapheme clusters (Unicode
// Standard Annex #29). All functions here may be called on any thread.

qsizetype characterCount(QStringView text);

// Offsets, in UTF-16 units, of the end of each character, in order.
QList<qsizetype> characterEnds(QStringView text);

// The beginning of `text` as far as it is drawn, at most `units` (above 0) UTF-16 units
// long. Left out are, of each character, the combining marks beyond the 16th on one
// base and what is beyond its 64th unit, so that no character costs without bounds;
// the number of characters stays the same. Reads no more of the text than needed.
QString drawnPart(const QString& text, qsizetype units);

// Whether a character (not empty) is shown as a coloured emoji: by itself, or because
// a selector asks for it.
bool isEmoji(QStringView character);

// Whether `text` has more than `limit` characters. Reads no more of the text than needed.
bool hasMoreCharacters(QStringView text, int limit);

} // namespace morrowleaf
