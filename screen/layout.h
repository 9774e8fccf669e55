// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <optional>

namespace morrowleaf {

// Sizes and distances on the quote screen, in points. Those marked with s k are
// multiplied by the scale of the screen and that of the user.
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
inline constexpr double leastSpace = 8;   // between the column and what is above and below
inline constexpr double shrunkSpace = 20; // the same for a column that had to shrink
inline constexpr double leastQuoteSize = 12;
inline constexpr double shadowRadius = 24;
inline constexpr double shadowDrop = 6;
} // namespace measure

// The factor s on every scaled size: the main screen's height in points divided
// by 982, clamped to [0.85, 1.55]. NaN gives 0.85, and no screen gives 1.
double screenScale(std::optional<double> screenHeight);

// The characters of a line, clamped to [16, 48], for a scale s × k. `screenWidth`
// is that of the main screen in points; 1512 is used without one.
int wrapTarget(std::optional<double> screenWidth, double sideInset, double scale);

// The rectangle that contains the column, the header and the hint: full height,
// at most 1180 points wide, centred in the width to the left of the inset.
QRectF contentBox(QSizeF view, double sideInset);
double columnWidth(const QRectF& contentBox);

// The sizes of the column's texts.
struct ColumnSizes {
    QSizeF mark;
    QList<QSizeF> lines;
    QSizeF author;
};

// The column in its own coordinates, in points: y from its top, x from its middle.
struct Column {
    double height = 0;
    QRectF mark;
    QList<QRectF> lines;
    QRectF rule;
    QRectF author;
};

enum class Leading { Left, Right };
Column stackColumn(const ColumnSizes& sizes, double scale, Leading leading);

// Where a finished column is placed in the view: scaled about its top, with its
// middle in the middle of the content box.
struct ColumnPlace {
    double top = 0;
    double scale = 1;
    bool overflows = false; // reaches below `bottom` even at its least scale
    double bottom = 0;      // the lowest y that the column may reach, above the hint
};
// A column that fits between header and hint is centred in the view as it is;
// a higher one shrinks, until the quotation is set in 12 points.
ColumnPlace placeColumn(double columnHeight, double viewHeight, double headerBottom, double hintTop,
                        double quoteSize);

// The characters worth laying out in a view of that height (points), with the
// quotation set in `quoteSize` points (above 0) unless it has to shrink, and
// `perLine` characters in a line; any others are below the bottom edge. Clamped to
// [2000, 20000]; NaN gives 2000.
qsizetype seenCharacters(double viewHeight, double quoteSize, int perLine);

// The first `limit` (above 0) user-perceived characters of `text`, or all of it
// when there are no more. Of a first character of extreme length only the
// beginning is returned. Does not read further into the text than it must.
QString beginningOf(const QString& text, qsizetype limit);

} // namespace morrowleaf
