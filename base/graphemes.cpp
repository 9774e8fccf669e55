// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/graphemes.h"

#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/utext.h>

#include <memory>

namespace morrowleaf {

namespace {

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

template <typename Visit>
void forEachCharacterEnd(QStringView text, Visit visit) {
    icu::BreakIterator& iterator = iteratorOver(text);
    for (int32_t end = iterator.next(); end != icu::BreakIterator::DONE; end = iterator.next()) {
        visit(qsizetype{end});
    }
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

bool hasMoreCharacters(QStringView text, int limit) {
    return text.size() > limit && iteratorOver(text).next(limit + 1) != icu::BreakIterator::DONE;
}

} // namespace morrowleaf
