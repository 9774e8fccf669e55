// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

#include <vector>

namespace morrowleaf {

// How a character is set, apart from its face.
enum class CharacterKind {
    Plain,
    Emoji, // in colour, as Unicode's emoji presentation asks
    Joined // of a script whose letters join, so that tracking would tear them apart
};

// A text as it is shaped. The user-perceived characters are those of the original
// text: control characters remain as empty ones.
struct SetText {
    QString text;
    QList<qsizetype> ends;         // of the characters, in UTF-16 units of `text`
    QList<qsizetype> originalEnds; // the same in the original text
    std::vector<CharacterKind> kinds;
};

enum class LineBreaks { Kept, Ignored };

// Breaks lines with line separators, or replaces them by spaces, and leaves out
// what is not drawn: control characters, and the selectors that ask for an emoji.
SetText setText(const QString& text, LineBreaks breaks);

} // namespace morrowleaf
