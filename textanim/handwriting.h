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

// A line as one path, in points, y upwards, the origin at the bottom left of
// the line's place; the baseline lies at y = the depth of the font's descender.
// Glyphs without an outline are left out. The size is rounded up to whole points.
struct GlyphPath {
    QPainterPath path; // fill rule winding
    QSizeF size{0, 0};
};

GlyphPath glyphPath(const QString& text, const TextFont& font);

// The same line as shapes with y downwards from the top left of its place; a
// line wider than `maxWidth` points (where that is above 0) is set in a smaller
// size.
struct HandwrittenLine {
    TextOutline text;
    double penWidth = 0; // points
};

HandwrittenLine handwrittenLine(const QString& text, const TextFont& font, double maxWidth = 0);
QSizeF handwrittenLineSize(const QString& text, const TextFont& font, double maxWidth = 0);

// The width of the pen, in points, for a font size in points: 0.018 of it, but
// at least 0.7.
double penWidth(double size);

// How far a handwritten line is, `seconds` after its delay.
struct PenProgress {
    double traced = 1; // the share of the whole outline that is drawn as a stroke
    double ink = 1;    // the opacity of the filled letters

    bool operator==(const PenProgress&) const = default;
};
PenProgress penProgress(double seconds);
double handwritingDuration(); // seconds

// Draws the line as a pen does: its outlines are traced, then filled with ink. A
// line without outlines (of emoji alone) is set in type.
std::unique_ptr<LinePainter> handwritingPainter(const QString& text, const TextFont& font,
                                                double maxWidth);

} // namespace morrowleaf
