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
    if (!(characters > 16)) {
        return 16;
    }
    return static_cast<int>(std::min(characters, 48.0));
}

QRectF contentBox(QSizeF view, double sideInset) {
    const double left = std::max(view.width() - sideInset, 0.0);
    const double width = std::min(measure::contentWidth, left);
    return {(left - width) / 2, 0, width, view.height()};
}

double columnWidth(const QRectF& contentBox) {
    return std::max(contentBox.width() - 2 * measure::columnPadding, 1.0);
}

Column stackColumn(const ColumnSizes& sizes, double scale, Leading leading) {
    Column column;
    column.mark = centred(0, sizes.mark);
    double y = sizes.mark.height() + measure::linesTop * scale;

    double block = 0;
    for (const QSizeF& line : sizes.lines) {
        block = std::max(block, line.width());
    }
    for (const QSizeF& line : sizes.lines) {
        if (!column.lines.isEmpty()) {
            y += measure::lineSpacing * scale;
        }
        const double x = leading == Leading::Left ? -block / 2 : block / 2 - line.width();
        column.lines.append(QRectF(QPointF(x, y), line));
        y += line.height();
    }

    y += measure::ruleTop * scale;
    column.rule = centred(y, {measure::ruleWidth, measure::ruleHeight});
    y += measure::ruleHeight + measure::authorTop * scale;
    column.author = centred(y, sizes.author);
    column.height = y + sizes.author.height();
    return column;
}

ColumnPlace placeColumn(double columnHeight, double viewHeight, double headerBottom, double hintTop,
                        double quoteSize) {
    const double middle = viewHeight / 2;
    const auto roomWith = [&](double space) {
        return 2 * std::min(middle - headerBottom - space, hintTop - space - middle);
    };
    ColumnPlace place;
    place.bottom = hintTop - measure::leastSpace;
    if (columnHeight > roomWith(measure::leastSpace)) {
        const double least = std::min(1.0, measure::leastQuoteSize / quoteSize);
        place.scale = std::max(roomWith(measure::shrunkSpace) / columnHeight, least);
    }
    const double height = columnHeight * place.scale;
    place.top = middle - height / 2;
    if (height > roomWith(measure::leastSpace)) {
        place.overflows = true;
        place.top = headerBottom + measure::shrunkSpace;
    }
    return place;
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
