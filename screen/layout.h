// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <optional>

namespace morrowleaf {

// Sizes and distances on the quote screen, in points. Those marked "s k" are
// multiplied by the scale of the screen (s) and that of the user (k).
namespace measure {
inline constexpr double quoteSize = 44;   // s k
inline constexpr double markSize = 64;    // s k
inline constexpr double lineSpacing = 12; // s k
inline constexpr double linesTop = 30;    // s k
inline constexpr double ruleTop = 46;     // s k
inline constexpr double ruleWidth = 56;
inline constexpr double ruleHeight = 1;
inline constexpr double authorTop = 22;  // s k
inline constexpr double authorSize = 12; // s k
inline constexpr double authorTracking = 3.4;
inline constexpr double captionSize = 11; // s k
inline constexpr double dateTracking = 2.2;
inline constexpr double hintTracking = 2.0;
inline constexpr double contentWidth = 1180;
inline constexpr double columnPadding = 90; // on either side
inline constexpr double headerSide = 46;
inline constexpr double headerTop = 38;
inline constexpr double hintBottom = 40;
inline constexpr double columnPaddings = linesTop + ruleTop + authorTop; // s k
inline constexpr double headerGap = 16;   // between greeting and date, at least
inline constexpr double columnSpace = 16; // between the column and header or hint, at least
inline constexpr int leastTarget = 16;    // characters in a line
inline constexpr int mostTarget = 48;
inline constexpr double leastQuoteSize = 12;
inline constexpr double ownScaleBelow = 24;  // smaller quotations shrink what is around them
inline constexpr double leastPaddings = 0.5; // × columnPaddings × the scale of the quotation
inline constexpr double shadowRadius = 24;
inline constexpr double shadowDrop = 6;
} // namespace measure

// The factor s on every scaled size: the main screen's height in points divided by
// 982, clamped to [0.85, 1.55]. NaN gives 0.85, and std::nullopt (no screen) gives 1.
double screenScale(std::optional<double> screenHeight);

// The target number of characters in a line, clamped to [16, 48], for the scale s
// × k. `screenWidth` is the width of the main screen in points, 1512 if it is
// std::nullopt; `sideInset` is in points. NaN gives 16.
int wrapTarget(std::optional<double> screenWidth, double sideInset, double scale);

// The rectangle, in points, that contains the column, the header and the hint: full
// height, at most 1180 points wide, centred in the width to the left of the inset.
QRectF contentBox(QSizeF view, double sideInset);
// The width of the column in the content box, at least 1 point.
double columnWidth(const QRectF& contentBox);

// The sizes of the column's texts.
struct ColumnSizes {
    QSizeF mark;
    QList<QSizeF> lines;
    QSizeF author;
};

// The column in its own coordinates, in points: y from its top, x from its centre.
struct Column {
    double height = 0;
    QRectF mark;
    QList<QRectF> lines;
    QRectF rule;
    QRectF author;
};

// The side at which the lines are aligned.
enum class Leading { Left, Right };
// Stacks mark, lines, rule and author from top to bottom. `lineScale` is the factor
// on the space between lines, `paddingScale` that on the paddings of `columnPaddings`.
Column stackColumn(const ColumnSizes& sizes, double lineScale, double paddingScale,
                   Leading leading);

// The height that a column centred in the view may have. All lengths are in points.
double columnRoom(double viewHeight, double headerBottom, double hintTop);

// Where a finished column is placed in the view, centred horizontally in the content box.
struct ColumnPlace {
    double top = 0;
    bool overflows = false; // extends below `bottom`
    double bottom = 0;      // the lowest y that the column may reach, above the hint
};
// A column that fits between header and hint is centred in the view; a taller one
// begins below the header.
ColumnPlace placeColumn(double columnHeight, double viewHeight, double headerBottom,
                        double hintTop);

// The factor that author and paddings would like to have: the wished one, and below a
// quotation of 24 points less in proportion. `wished` is s × k, `quoteSize` in points.
double surroundingScale(double wished, double quoteSize);

// The number of characters that can be seen in a view of that height (points),
// with the quotation set in `quoteSize` points (above 0) or smaller and `perLine`
// characters in a line; any others are below the bottom edge. Clamped to [2000,
// 20000]; NaN gives 2000.
qsizetype visibleCharacterLimit(double viewHeight, double quoteSize, int perLine);

// The first `limit` (above 0) user-perceived characters of `text`, or all of it
// when there are no more. If the first character is extremely long, only its
// beginning is returned. Reads no more of the text than needed.
QString beginningOf(const QString& text, qsizetype limit);

} // namespace morrowleaf
