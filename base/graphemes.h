// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStringView>

namespace morrowleaf {

// Counts user-perceived characters, which are extended grapheme clusters (Unicode
// Standard Annex #29). All functions here may be called on any thread.

qsizetype characterCount(QStringView text);

// Offsets, in UTF-16 units, of the end of each character, in order.
QList<qsizetype> characterEnds(QStringView text);

// Whether `text` has more than `limit` characters. Reads no more of the text than needed.
bool hasMoreCharacters(QStringView text, int limit);

} // namespace morrowleaf
