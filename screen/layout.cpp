// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/layout.h"

#include "base/graphemes.h"

#include <algorithm>
#include <cmath>

namespace morrowleaf {

namespace {

QRectF centred(double top, QSizeF size) {
    return {QPointF(-size.width() / 2, top), size};
}

constexpr int slack = 2; // characters that a balanced line may hold beyond its target
constexpr double leastSeen = 2000;
constexpr double mostSeen = 20000;
constexpr qsizetype unitsPerCharacter = 4; // UTF-16 units kept for each, on average
constexpr qsizetype longestCharacter = 64; // UTF-16 units kept of a character of extreme length

// The first `units` UTF-16 units; does not split a surrogate pair.
QString leftOf(const QString& text, qsizetype units) {
    const bool splits =
        units < text.size() && text[units].isLowSurrogate() && text[units - 1].isHighSurrogate();
    return text.left(splits ? units - 1 : units);
}

} // namespace

double screenScale(std::optional<double> screenHeight) {
    if (!screenHeight) {
        return 1;
    }
    const double scale = *screenHeight / 982;
    return scale > 0.85 ? std::min(scale, 1.55) : 0.85;
}

int wrapTarget(std::optional<double> screenWidth, double sideInset, double scale) {
    const double width = std::min(screenWidth.value_or(1512) - sideInset, measure::contentWidth) -
                         2 * measure::columnPadding;
    const double characters = width / (scale * measure::quoteSize * 0.55);
    // The comparison is false for NaN, which gives the smallest value.
    if (!(characters > measure::leastTarget)) {
        return measure::leastTarget;
    }
    return static_cast<int>(std::min(characters, double{measure::mostTarget}));
}

QRectF contentBox(QSizeF view, double sideInset) {
    const double left = std::max(view.width() - sideInset, 0.0);
    const double width = std::min(measure::contentWidth, left);
    return {(left - width) / 2, 0, width, view.height()};
}

double columnWidth(const QRectF& contentBox) {
    return std::max(contentBox.width() - 2 * measure::columnPadding, 1.0);
}

Column stackColumn(const ColumnSizes& sizes, double lineScale, double paddingScale,
                   Leading leading) {
    Column column;
    column.mark = centred(0, sizes.mark);
    double y = sizes.mark.height() + measure::linesTop * paddingScale;

    double block = 0;
    for (const QSizeF& line : sizes.lines) {
        block = std::max(block, line.width());
    }
    for (const QSizeF& line : sizes.lines) {
        if (!column.lines.isEmpty()) {
            y += measure::lineSpacing * lineScale;
        }
        const double x = leading == Leading::Left ? -block / 2 : block / 2 - line.width();
        column.lines.append(QRectF(QPointF(x, y), line));
        y += line.height();
    }

    y += measure::ruleTop * paddingScale;
    column.rule = centred(y, {measure::ruleWidth, measure::ruleHeight});
    y += measure::ruleHeight + measure::authorTop * paddingScale;
    column.author = centred(y, sizes.author);
    column.height = y + sizes.author.height();
    return column;
}

double columnRoom(double viewHeight, double headerBottom, double hintTop) {
    const double middle = viewHeight / 2;
    return 2 * (std::min(middle - headerBottom, hintTop - middle) - measure::columnSpace);
}

ColumnPlace placeColumn(double columnHeight, double viewHeight, double headerBottom,
                        double hintTop) {
    constexpr double rounding = 1e-6;
    ColumnPlace place;
    place.bottom = hintTop - measure::columnSpace;
    place.top = viewHeight / 2 - columnHeight / 2;
    if (columnHeight > columnRoom(viewHeight, headerBottom, hintTop) + rounding) {
        place.overflows = true;
        place.top = headerBottom + measure::columnSpace;
    }
    return place;
}

double surroundingScale(double wished, double quoteSize) {
    const double whole = std::min(measure::ownScaleBelow, measure::quoteSize * wished);
    return wished * std::min(quoteSize / whole, 1.0);
}

qsizetype visibleCharacterLimit(double viewHeight, double quoteSize, int perLine) {
    const double size = std::min(quoteSize, measure::leastQuoteSize);
    const double advance = size * (1 + measure::lineSpacing / measure::quoteSize);
    const double characters = std::ceil(viewHeight / advance) * (perLine + slack);
    // The comparison is false for NaN, which gives the smallest value.
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
    // The last character of a truncated text may be incomplete.
    const qsizetype kept = std::min(isWhole ? ends.size() : ends.size() - 1, limit);
    return kept > 0 ? head.left(ends[kept - 1]) : leftOf(head, longestCharacter);
}

} // namespace morrowleaf
