// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/characters.h"

#include "base/graphemes.h"

namespace morrowleaf {

namespace {

bool isLineBreak(QStringView character) {
    switch (character.front().unicode()) {
    case '\n':
    case '\v':
    case '\f':
    case '\r':
    case 0x0085:
    case QChar::LineSeparator:
    case QChar::ParagraphSeparator:
        return true;
    default:
        return false;
    }
}

} // namespace

SetText setText(const QString& text, LineBreaks breaks) {
    SetText set;
    set.text.reserve(text.size());
    set.ends = characterEnds(text);
    qsizetype begin = 0;
    for (qsizetype& end : set.ends) {
        const QStringView character = QStringView(text).mid(begin, end - begin);
        begin = end;
        if (isLineBreak(character)) {
            set.text += breaks == LineBreaks::Kept ? QChar(QChar::LineSeparator) : QChar(u' ');
        } else if (character.front() == u'\t') {
            set.text += u' ';
        } else if (character.front().category() != QChar::Other_Control) {
            set.text += character;
        }
        end = set.text.size();
    }
    return set;
}

} // namespace morrowleaf
