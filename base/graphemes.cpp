// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/graphemes.h"

#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/uchar.h>
#include <unicode/utext.h>
#include <unicode/utf16.h>

#include <algorithm>
#include <memory>

namespace morrowleaf {

namespace {

constexpr int mostMarks = 16;              // on one base
constexpr qsizetype longestCharacter = 64; // UTF-16 units

std::unique_ptr<icu::BreakIterator> makeIterator() {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::BreakIterator> iterator(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    if (U_FAILURE(status)) {
        qFatal("ICU has no rules for characters: %s.", u_errorName(status));
    }
    return iterator;
}

// This thread's iterator at the start of `text`, which must stay valid while it is used.
icu::BreakIterator& iteratorOver(QStringView text) {
    // Making an iterator costs far more than running it over a line.
    static thread_local const std::unique_ptr<icu::BreakIterator> iterator = makeIterator();
    UErrorCode status = U_ZERO_ERROR;
    UText units = UTEXT_INITIALIZER;
    utext_openUChars(&units, text.utf16(), text.size(), &status);
    iterator->setText(&units, status);
    utext_close(&units); // the iterator keeps a clone
    if (U_FAILURE(status)) {
        qFatal("ICU refuses a text of %lld units: %s.", static_cast<long long>(text.size()),
               u_errorName(status));
    }
    return *iterator;
}

// Whether a character always ends between two such units.
bool isSimple(QChar unit) {
    constexpr char16_t firstMark = 0x0300;
    return unit < firstMark && unit != u'\r';
}

template <typename Visit>
void forEachCharacterEnd(QStringView text, Visit visit) {
    // Running the iterator costs far more than looking at units.
    qsizetype begin = 0;
    while (begin < text.size()) {
        qsizetype end = begin + 1;
        while (end < text.size() && !(isSimple(text[end - 1]) && isSimple(text[end]))) {
            ++end;
        }
        if (end == begin + 1) {
            visit(end);
        } else {
            icu::BreakIterator& iterator = iteratorOver(text.mid(begin, end - begin));
            for (int32_t at = iterator.next(); at != icu::BreakIterator::DONE;
                 at = iterator.next()) {
                visit(begin + at);
            }
        }
        begin = end;
    }
}

bool isMark(UChar32 code) {
    if ((U_MASK(u_charType(code)) & U_GC_M_MASK) == 0) {
        return false;
    }
    // A few marks are characters of their own.
    const int kind = u_getIntPropertyValue(code, UCHAR_GRAPHEME_CLUSTER_BREAK);
    return kind == U_GCB_EXTEND || kind == U_GCB_SPACING_MARK;
}

QString withoutExcessMarks(const QString& text, qsizetype units) {
    const auto* from = text.utf16();
    // Bounds the time for a text of nothing but marks.
    const qsizetype read = std::min(text.size(), longestCharacter * units);
    QString drawn;
    drawn.reserve(std::min(read, units));
    int marks = 0;
    for (qsizetype i = 0; i < read && drawn.size() < units;) {
        const qsizetype start = i;
        UChar32 code = 0;
        U16_NEXT(from, i, text.size(), code);
        if (isMark(code)) {
            ++marks;
        } else if (u_charType(code) != U_FORMAT_CHAR) { // a joiner continues a character
            marks = 0;
        }
        if (drawn.size() + (i - start) > units) {
            break;
        }
        if (marks <= mostMarks) {
            drawn.append(QStringView(text).mid(start, i - start));
        }
    }
    return drawn;
}

// Shortens the characters that are extremely long.
QString withShortCharacters(const QString& text) {
    QString drawn;
    qsizetype begin = 0;
    forEachCharacterEnd(text, [&](qsizetype end) {
        QStringView character = QStringView(text).mid(begin, end - begin);
        begin = end;
        if (character.size() > longestCharacter) {
            const bool splits = character[longestCharacter].isLowSurrogate();
            character = character.first(longestCharacter - (splits ? 1 : 0));
        }
        drawn.append(character);
    });
    return drawn;
}

} // namespace

qsizetype characterCount(QStringView text) {
    qsizetype count = 0;
    forEachCharacterEnd(text, [&](qsizetype) { ++count; });
    return count;
}

QList<qsizetype> characterEnds(QStringView text) {
    QList<qsizetype> ends;
    ends.reserve(text.size());
    forEachCharacterEnd(text, [&](qsizetype end) { ends.append(end); });
    return ends;
}

QString drawnPart(const QString& text, qsizetype units) {
    const bool isShort = text.size() <= std::min(units, qsizetype{mostMarks});
    return isShort ? text : withShortCharacters(withoutExcessMarks(text, units));
}

bool isEmoji(QStringView character) {
    constexpr QChar textSelector(0xFE0E);
    constexpr QChar emojiSelector(0xFE0F);
    constexpr QChar joiner(0x200D);
    const auto is = [](UChar32 code, UProperty property) {
        return u_hasBinaryProperty(code, property) != 0;
    };
    UChar32 code = 0;
    qsizetype i = 0;
    U16_NEXT(character.utf16(), i, character.size(), code);
    if (!is(code, UCHAR_EMOJI) || character.contains(textSelector)) {
        return false;
    }
    // Joined emoji are often written without the selectors that they should have.
    bool result = character.contains(emojiSelector) ||
                  (character.contains(joiner) && is(code, UCHAR_EXTENDED_PICTOGRAPHIC)) ||
                  is(code, UCHAR_EMOJI_PRESENTATION);
    while (!result && i < character.size()) {
        U16_NEXT(character.utf16(), i, character.size(), code);
        result = is(code, UCHAR_EMOJI_PRESENTATION); // a skin tone, for one
    }
    return result;
}

bool hasMoreCharacters(QStringView text, int limit) {
    return text.size() > limit && iteratorOver(text).next(limit + 1) != icu::BreakIterator::DONE;
}

} // namespace morrowleaf
