#pragma once

#include <QString>
#include <QStringList>

namespace morrowleaf {

// User-perceived characters: extended grapheme clusters.
qsizetype characterCount(const QString& text);
// Offsets, in UTF-16 units, of the end of each character, in order.
QList<qsizetype> characterEnds(const QString& text);

// Cuts a text into lines of nearly equal length, at U+0020 only; `target` is
// the preferred number of characters in a line and not 0.
QStringList balancedLines(const QString& text, int target = 32);

} // namespace morrowleaf
