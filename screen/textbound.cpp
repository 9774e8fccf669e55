// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/textbound.h"

#include "base/graphemes.h"
#include "screen/layout.h"

#include <algorithm>
#include <cmath>

namespace morrowleaf {

namespace {

constexpr int slack = 2; // characters that a balanced line may hold beyond its target
constexpr double leastSeen = 2000;
constexpr double mostSeen = 20000;
constexpr qsizetype unitsPerCharacter = 4; // on the average
constexpr qsizetype longestCharacter = 64; // units kept of one beyond all bounds

// Splits no surrogate pair.
QString leftOf(const QString& text, qsizetype units) {
    const bool splits =
        units < text.size() && text[units].isLowSurrogate() && text[units - 1].isHighSurrogate();
    return text.left(splits ? units - 1 : units);
}

} // namespace

qsizetype seenCharacters(double viewHeight, double quoteSize, int perLine) {
    const double size = std::min(quoteSize, measure::leastQuoteSize);
    const double advance = size * (1 + measure::lineSpacing / measure::quoteSize);
    const double characters = std::ceil(viewHeight / advance) * (perLine + slack);
    // Written so that no number is the least of them.
    return static_cast<qsizetype>(characters > leastSeen ? std::min(characters, mostSeen)
                                                         : leastSeen);
}

QString beginningOf(const QString& text, qsizetype limit) {
    if (text.size() <= limit) {
        return text;
    }
    const QString head = leftOf(text, limit * unitsPerCharacter);
    const QList<qsizetype> ends = characterEnds(head);
    const bool isWhole = head.size() == text.size();
    // The last one of a head may have been cut through.
    const qsizetype kept = std::min(isWhole ? ends.size() : ends.size() - 1, limit);
    return kept > 0 ? head.left(ends[kept - 1]) : leftOf(head, longestCharacter);
}

} // namespace morrowleaf
