// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <optional>

namespace morrowleaf {

// Where things stand on the quote screen, as plain numbers. All of them are
// points; those that scale are multiplied by the screen's scale s and the
// user's k.
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

// The factor s on every scaled size: the main screen's height in points over
// 982, clamped to 0.85...1.55. NaN gives 0.85; without a screen it is 1.
double screenScale(std::optional<double> screenHeight);

// Characters in a line, 16...48, for a scale s × k. The width is that of the
// main screen, 1512 without one.
int wrapTarget(std::optional<double> screenWidth, double sideInset, double scale);

// What the column and both overlays lie in: full height, at most 1180 wide,
// centred in the width left of the inset.
QRectF contentBox(QSizeF view, double sideInset);
double columnWidth(const QRectF& contentBox);

// The sizes of the column's texts.
struct ColumnSizes {
    QSizeF mark;
    QList<QSizeF> lines;
    QSizeF author;
};

// The column in its own coordinates: y from its top, x from its middle.
struct Column {
    double height = 0;
    QRectF mark;
    QList<QRectF> lines;
    QRectF rule;
    QRectF author;
};

enum class Leading { Left, Right };
Column stackColumn(const ColumnSizes& sizes, double scale, Leading leading);

// How a finished column stands in the view: scaled about its top, with its
// middle in the middle of the content box.
struct ColumnPlace {
    double top = 0;
    double scale = 1;
    bool overflows = false; // below `bottom`, even at its least scale
    double bottom = 0;      // where the hint begins
};
// A column that fits between header and hint is centred in the view as it is;
// a higher one shrinks, until the quotation is set in 12 points.
ColumnPlace placeColumn(double columnHeight, double viewHeight, double headerBottom, double hintTop,
                        double quoteSize);

// Characters worth laying out on a view of that height (points), with the
// quotation set in `quoteSize` points (above 0) unless it has to shrink, and
// `perLine` of them in a line. More lie beyond the bottom; 2000...20000.
qsizetype seenCharacters(double viewHeight, double quoteSize, int perLine);

// The beginning of `text`: all of it if it has no more than `limit` (above 0)
// user-perceived characters of an ordinary length, else as many whole ones. Of
// a first character beyond all bounds, only its beginning. Looks no further
// into the text than it must.
QString beginningOf(const QString& text, qsizetype limit);

} // namespace morrowleaf
