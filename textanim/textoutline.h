// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "textanim/textlayout.h"

#include <QColor>
#include <QHash>
#include <QImage>
#include <QPainterPath>
#include <QRawFont>
#include <QRectF>
#include <QSizeF>
#include <QtGlobal>

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <utility>
#include <vector>

class QPainter;

namespace morrowleaf {

// A glyph that is a picture (an emoji) and has no outline.
struct GlyphPicture {
    QImage picture; // premultiplied
    QRectF place;   // points
};

// The shapes of glyphs, for texts that are outlined one after another: equal glyphs are
// read only once, since reading is what an outline costs.
class GlyphShapes {
public:
    struct DrawnGlyph {
        QImage picture;  // null for an empty glyph
        QPointF topLeft; // from the glyph's origin, pixels
    };
    struct Shape {
        QPainterPath outline; // in pixels of the face
        DrawnGlyph drawn;     // if it has no outline
    };
    // Valid until the next call.
    const Shape& shapeOf(const PlacedGlyph& glyph);

private:
    using Glyph = std::pair<QRawFont, quint32>;
    QHash<std::pair<Glyph, double>, Shape> shapes_; // by glyph and moved edges
};

// Pictures in the sizes in which they are drawn. Equal pictures are reduced only once.
class ReducedPictures {
public:
    // `picture`, which is reduced if it is larger than `size` (device pixels).
    const QImage& inSize(const QImage& picture, QSize size);

private:
    QHash<std::pair<qint64, int>, QImage> reduced_; // by picture and width
};

// What one or more characters are drawn as.
struct OutlineInk {
    QPainterPath outline; // fill rule winding
    std::vector<GlyphPicture> pictures;
};

// What appears with one keystroke of the typewriter, or with as many as there are
// characters that share a glyph (a ligature, a conjunct).
struct OutlinePart {
    qsizetype firstCharacter = 0;
    qsizetype characterCount = 0;
    OutlineInk ink;
    std::vector<OutlineInk> begun; // what stands there after 1, 2 … of several keystrokes
};

// Parts that touch (joined letters), filled as one path so that no seam is visible.
struct OutlineGroup {
    std::size_t firstPart = 0;
    std::size_t partCount = 0;
    QPainterPath outline;
};

// A text as outlines in points; y runs downwards, and the origin is at the top
// left of the text's rectangle.
struct TextOutline {
    std::vector<OutlinePart> parts; // in the order of the text
    std::vector<OutlineGroup> groups;
    bool hasPictures = false;
    QSizeF size{0, 0};
    double baseline = 0; // of the first row
    qsizetype characterCount = 0;
    QRectF ink; // the bounding rectangle of outlines and pictures
    // What it costs to fill it, in elements of outlines; a picture counts as many.
    int cost = 0;
};

// Where a row is: its left end and baseline in points, and the points in one unit of
// the layout.
struct RowPlace {
    QPointF origin;
    double unit = 0;
};

struct PlacedRows {
    TextOutline frame; // the outline, still without parts
    std::vector<RowPlace> places;
};

// Stacks the rows of a layout; one unit of the layout is `unit` points long. If
// `maxWidth` is above 0, rows wider than that many points are scaled down. Rows
// are aligned left, or right if the text runs from right to left.
PlacedRows placeRows(const TextLayout& layout, double unit, double maxWidth);

// Adds clusters of the row at `place`, in the order of the text.
void addClusters(TextOutline& text, std::span<const GlyphCluster> clusters, const RowPlace& place,
                 GlyphShapes& shapes);

TextOutline outlineOf(const RowLayout& layout, PlacedRows placed, GlyphShapes& shapes);

// An outline whose letters are read from the typeface when they are first asked for, or
// little by little before: reading is costly. What places the text is known from the start.
class LateOutline {
public:
    // Gives the clusters of a row; one unit of the layout is `unit` points long.
    using ClustersOf = std::function<std::vector<GlyphCluster>(std::size_t row, double unit)>;

    LateOutline() = default;
    // `shapes` may be shared with other outlines.
    LateOutline(PlacedRows placed, ClustersOf clustersOf, std::shared_ptr<GlyphShapes> shapes)
        : outline_(std::move(placed.frame))
        , places_(std::move(placed.places))
        , clustersOf_(std::move(clustersOf))
        , shapes_(std::move(shapes)) {}

    QSizeF size() const { return outline_.size; }
    qsizetype characterCount() const { return outline_.characterCount; }
    qsizetype readLetters() const { return static_cast<qsizetype>(outline_.parts.size()); }
    // Reads the next letters, at most so many; returns how many.
    qsizetype read(qsizetype most);
    const TextOutline& whole();

private:
    bool isRead() const { return row_ == places_.size(); }

    TextOutline outline_;
    std::vector<RowPlace> places_;
    ClustersOf clustersOf_;
    std::shared_ptr<GlyphShapes> shapes_;
    // What is read next.
    std::size_t row_ = 0;
    std::optional<std::vector<GlyphCluster>> clusters_; // of that row, once it is begun
    std::size_t cluster_ = 0;
};

// All outlines in the order of the text.
QPainterPath wholePath(const TextOutline& text);

// Draws the text with its origin at the painter's origin.
void paintOutline(QPainter& painter, const TextOutline& text, const QColor& color);
// Draws one part, or what stands in its place after that many keystrokes; pictures are
// on whole pixels, which is faster.
void paintPart(QPainter& painter, const OutlinePart& part, qsizetype characters,
               const QColor& color, ReducedPictures& pictures);
// Draws only the first `characters` characters, each at its place in the whole text.
void paintTyped(QPainter& painter, const TextOutline& text, qsizetype characters,
                const QColor& color, ReducedPictures& pictures);

} // namespace morrowleaf
