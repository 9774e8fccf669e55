// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "textanim/fonts.h"
#include "textanim/lettering.h"
#include "textanim/textoutline.h"

#include <QPainterPath>
#include <QSizeF>

#include <memory>

namespace morrowleaf {

// A line as one path, in points, y upwards, the origin at the bottom left of
// the line's place; the baseline lies at y = the depth of the font's descender.
// Glyphs without an outline are left out. The size is in whole points.
struct GlyphPath {
    QPainterPath path; // fill rule winding
    QSizeF size{0, 0};
};

GlyphPath glyphPath(const QString& text, const TextFont& font);

// The same line as shapes with y downwards from the top left of its place; a
// line wider than `maxWidth` (where that is above 0) is set in a smaller size.
struct HandwrittenLine {
    TextOutline text;
    double penWidth = 0; // points
};

HandwrittenLine handwrittenLine(const QString& text, const TextFont& font, double maxWidth = 0);
QSizeF handwrittenLineSize(const QString& text, const TextFont& font, double maxWidth = 0);

// Width of the pen for a size in points: a share of it, but never a hair.
double penWidth(double size);

// The line as a pen draws it: its outlines are traced, then filled with ink. A
// line without outlines (of pictures alone) is set in type.
std::unique_ptr<Lettering> penLettering(const QString& text, const TextFont& font, double maxWidth);

} // namespace morrowleaf
