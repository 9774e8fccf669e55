// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "textanim/fonts.h"
#include "textanim/linepainter.h"
#include "textanim/textoutline.h"

#include <QPainterPath>
#include <QSizeF>

#include <memory>

namespace morrowleaf {

// A line as one path in points, with y upwards and the origin at the bottom left
// of the line's rectangle; the baseline is at y = the descent of the font. Glyphs
// without an outline are omitted. The size is rounded up to whole points.
struct GlyphPath {
    QPainterPath path; // fill rule winding
    QSizeF size{0, 0};
};

GlyphPath glyphPath(const QString& text, const TextFont& font);

// The same line as an outline with y downwards from the top left of its
// rectangle. If `maxWidth` (points) is above 0, the line is broken into rows as
// ShapedText breaks it.
struct HandwrittenLine {
    TextOutline text;
    double penWidth = 0; // points
};

// Rounds a length in points up to whole ones, as for the size of a line of one row.
double wholePoints(double length);

HandwrittenLine handwrittenLine(const QString& text, const TextFont& font, double maxWidth = 0);
// Places the rows of a line: a single one that fits in a rectangle of whole points.
PlacedRows placeHandwritten(const TextLayout& layout, const TextFont& font, double maxWidth);
QSizeF handwrittenLineSize(const QString& text, const TextFont& font, double maxWidth = 0);

// The width of the pen in points for a font size in points: 0.018 times the size,
// but at least 0.7.
double penWidth(double size);

// The progress of a handwritten line `seconds` after its delay; negative seconds
// and NaN count as 0.
struct PenProgress {
    double traced = 1; // the fraction of the whole outline that is drawn as a stroke
    double ink = 1;    // the opacity of the filled letters

    bool operator==(const PenProgress&) const = default;
};
PenProgress penProgress(double seconds);
double handwritingDuration(); // seconds

// Draws the line as a pen does: its outlines are traced, then filled with ink. A
// line without outlines (only emoji) is drawn as ordinary type, and one with very many
// fades in. `size` is that of the font, in points.
std::unique_ptr<LinePainter> handwritingPainter(LateOutline text, double size);

} // namespace morrowleaf
