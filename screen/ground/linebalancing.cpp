#include "screen/ground/linebalancing.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/utext.h>

namespace morrowleaf {

namespace {

std::unique_ptr<icu::BreakIterator> makeCharacterIterator() {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::BreakIterator> iterator(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    if (U_FAILURE(status)) {
        qFatal("ICU has no rules for characters: %s.", u_errorName(status));
    }
    return iterator;
}

template <typename Visit>
void forEachCharacterEnd(const QString& text, Visit visit) {
    // Making an iterator costs far more than running it over a line.
    static thread_local const std::unique_ptr<icu::BreakIterator> iterator =
        makeCharacterIterator();
    UErrorCode status = U_ZERO_ERROR;
    UText units = UTEXT_INITIALIZER;
    utext_openUChars(&units, reinterpret_cast<const UChar*>(text.constData()), text.size(),
                     &status);
    iterator->setText(&units, status);
    if (U_FAILURE(status)) {
        qFatal("ICU refuses a text of %lld units: %s.", static_cast<long long>(text.size()),
               u_errorName(status));
    }
    for (int32_t end = iterator->next(); end != icu::BreakIterator::DONE; end = iterator->next()) {
        visit(qsizetype{end});
    }
    utext_close(&units);
}

// Characters that a line may hold beyond the even share.
constexpr double slack = 2;

double lineLimit(const QString& text, int target) {
    if (target == 0) {
        qFatal("Lines of 0 characters cannot be balanced.");
    }
    const auto length = static_cast<double>(characterCount(text));
    const double lines = std::max(std::ceil(length / target), 1.0);
    return std::ceil(length / lines) + slack;
}

} // namespace

qsizetype characterCount(const QString& text) {
    qsizetype count = 0;
    forEachCharacterEnd(text, [&](qsizetype) { ++count; });
    return count;
}

QList<qsizetype> characterEnds(const QString& text) {
    QList<qsizetype> ends;
    ends.reserve(text.size());
    forEachCharacterEnd(text, [&](qsizetype end) { ends.append(end); });
    return ends;
}

QStringList balancedLines(const QString& text, int target) {
    QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    if (words.size() < 2) {
        return words;
    }
    const double limit = lineLimit(text, target);
    QStringList lines;
    QString current;
    for (const QString& word : words) {
        if (current.isEmpty()) {
            current = word;
        } else if (static_cast<double>(characterCount(current) + 1 + characterCount(word)) <=
                   limit) {
            current += u' ' + word;
        } else {
            lines.append(current);
            current = word;
        }
    }
    lines.append(current);
    return lines;
}

} // namespace morrowleaf
