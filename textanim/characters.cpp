// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/characters.h"

#include "base/graphemes.h"

namespace morrowleaf {

namespace {

constexpr QChar emojiSelector(0xFE0F);

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

// Whether the letters of the script touch: cursive scripts, and those that hang
// from a common headline.
bool joins(QChar::Script script) {
    switch (script) {
    case QChar::Script_Adlam:
    case QChar::Script_Arabic:
    case QChar::Script_Bengali:
    case QChar::Script_Chorasmian:
    case QChar::Script_Devanagari:
    case QChar::Script_Dogra:
    case QChar::Script_Gurmukhi:
    case QChar::Script_HanifiRohingya:
    case QChar::Script_Kaithi:
    case QChar::Script_Mandaic:
    case QChar::Script_Manichaean:
    case QChar::Script_Modi:
    case QChar::Script_Mongolian:
    case QChar::Script_Nandinagari:
    case QChar::Script_Nko:
    case QChar::Script_OldUyghur:
    case QChar::Script_PhagsPa:
    case QChar::Script_PsalterPahlavi:
    case QChar::Script_Sharada:
    case QChar::Script_Sogdian:
    case QChar::Script_SylotiNagri:
    case QChar::Script_Syriac:
    case QChar::Script_Takri:
    case QChar::Script_Tirhuta:
        return true;
    default:
        return false;
    }
}

char32_t firstCode(QStringView character) {
    const bool isPair = character.size() > 1 && character[0].isHighSurrogate();
    return isPair ? QChar::surrogateToUcs4(character[0], character[1]) : character[0].unicode();
}

CharacterKind kindOf(QStringView character) {
    if (isEmoji(character)) {
        return CharacterKind::Emoji;
    }
    const char32_t code = firstCode(character);
    const bool stretches = QChar::joiningType(code) == QChar::Joining_Causing; // a kashida
    return stretches || joins(QChar::script(code)) ? CharacterKind::Joined : CharacterKind::Plain;
}

} // namespace

SetText setText(const QString& text, LineBreaks breaks) {
    SetText set;
    set.text.reserve(text.size());
    set.originalEnds = characterEnds(text);
    set.ends = set.originalEnds;
    set.kinds.reserve(static_cast<std::size_t>(set.ends.size()));
    qsizetype begin = 0;
    for (qsizetype& end : set.ends) {
        const QStringView character = QStringView(text).mid(begin, end - begin);
        begin = end;
        const CharacterKind kind = kindOf(character);
        if (isLineBreak(character)) {
            set.text += breaks == LineBreaks::Kept ? QChar(QChar::LineSeparator) : QChar(u' ');
        } else if (character.front() == u'\t') {
            set.text += u' ';
        } else if (kind == CharacterKind::Emoji) {
            // A face without a glyph for the selector would tear a joined emoji apart.
            set.text += character.toString().remove(emojiSelector);
        } else if (character.front().category() != QChar::Other_Control) {
            set.text += character;
        }
        end = set.text.size();
        set.kinds.push_back(kind);
    }
    for (std::size_t i = 1; i + 1 < set.kinds.size(); ++i) {
        const bool isBetween =
            set.kinds[i - 1] == CharacterKind::Joined && set.kinds[i + 1] == CharacterKind::Joined;
        if (isBetween && set.text[set.ends[static_cast<qsizetype>(i)] - 1] == u' ') {
            set.kinds[i] = CharacterKind::Joined; // the words of one script keep together
        }
    }
    return set;
}

} // namespace morrowleaf
