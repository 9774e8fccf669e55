// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QImage>
#include <QPainterPath>
#include <QRectF>
#include <QSizeF>
#include <QtGlobal>

#include <cstddef>
#include <vector>

class QPainter;

namespace morrowleaf {

struct TextLayout;
struct TextRow;

// A glyph that is a picture (an emoji) and has no outline.
struct GlyphPicture {
    QImage picture; // premultiplied; larger than ever shown
    QRectF place;   // points
};

// What appears at one stroke of the typewriter, or at several when characters
// share a glyph: then the glyph appears in as many pieces, from the side where the
// text begins.
struct OutlinePart {
    qsizetype firstCharacter = 0;
    qsizetype characterCount = 0;
    double left = 0; // of its place on the row, points
    double right = 0;
    bool rightToLeft = false;
    QPainterPath outline; // fill rule winding
    std::vector<GlyphPicture> pictures;
};

// Parts that touch (joined letters), filled as one so that no seam shows.
struct OutlineGroup {
    std::size_t firstPart = 0;
    std::size_t partCount = 0;
    QPainterPath outline;
};

// A text as shapes, in points; y runs downwards, and the origin is at the top left
// of the text's place.
struct TextOutline {
    std::vector<OutlinePart> parts; // in the order of the text
    std::vector<OutlineGroup> groups;
    bool hasPictures = false;
    QSizeF size{0, 0};
    double baseline = 0; // of the first row
    qsizetype characterCount = 0;
    QRectF ink; // what outlines and pictures cover
};

// Stacks the rows of a layout whose unit is `unit` points long. Rows wider than
// `maxWidth` are scaled down when it is above 0; rows start at the left, or
// end at the right when the text runs right to left.
TextOutline outlineOf(const TextLayout& layout, double unit, double maxWidth);

// The first row alone with its left end and baseline at `origin`; `size` and
// `baseline` are left to the caller.
TextOutline outlineRow(const TextLayout& layout, QPointF origin, double unit);

// All outlines in the order of the text.
QPainterPath wholePath(const TextOutline& text);

// Both draw with the origin of the text at the painter's origin.
void paintOutline(QPainter& painter, const TextOutline& text, const QColor& color);
// Draws the first characters only, each where it stands in the whole text.
void paintTyped(QPainter& painter, const TextOutline& text, qsizetype characters,
                const QColor& color);

} // namespace morrowleaf
