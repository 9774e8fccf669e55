// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/textoutline.h"

#include "textanim/emojiface.h"
#include "textanim/textlayout.h"
#include "textanim/weightmatch.h"

#include <QGlyphRun>
#include <QPainter>
#include <QTransform>
#include <QtMath>

#include <algorithm>
#include <limits>
#include <utility>

namespace morrowleaf {

namespace {

using DrawnGlyph = GlyphShapes::DrawnGlyph;

// Drawing a picture takes about as long as filling so many elements of outlines.
constexpr int elementsPerPicture = 50;

constexpr int pictureSize = 160; // font size for glyphs without an outline, pixels

DrawnGlyph drawGlyph(QRawFont face, quint32 index) {
    // Bitmap faces know the extents of their glyphs only at moderate sizes.
    face.setPixelSize(pictureSize);
    const QRectF extent = face.boundingRect(index);
    if (extent.isEmpty()) {
        return {};
    }
    const QRectF drawn = extent.adjusted(-2, -2, 2, 2);
    QImage picture(drawn.size().toSize() + QSize(1, 1), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QGlyphRun run;
    run.setRawFont(face);
    run.setGlyphIndexes({index});
    run.setPositions({QPointF()});
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawGlyphRun(-drawn.topLeft(), run);
    painter.end();
    return {picture, drawn.topLeft()};
}

OutlineInk outlineGlyphs(const std::vector<PlacedGlyph>& glyphs, QPointF origin, double unit,
                         GlyphShapes& shapes) {
    OutlineInk ink;
    ink.outline.setFillRule(Qt::WindingFill);
    for (const PlacedGlyph& glyph : glyphs) {
        const GlyphShapes::Shape& shape = shapes.shapeOf(glyph);
        const QPointF at = origin + glyph.position * unit;
        const QTransform place = QTransform::fromTranslate(at.x(), at.y()).scale(unit, unit);
        if (!shape.outline.isEmpty()) {
            ink.outline.addPath(place.map(shape.outline));
        } else if (!shape.drawn.picture.isNull()) {
            const double scale = unit * shapingSize / pictureSize;
            ink.pictures.push_back(
                {shape.drawn.picture,
                 {at + shape.drawn.topLeft * scale, QSizeF(shape.drawn.picture.size()) * scale}});
        }
    }
    return ink;
}

OutlinePart outlineCluster(const GlyphCluster& cluster, QPointF origin, double unit,
                           GlyphShapes& shapes) {
    OutlinePart part{cluster.firstCharacter,
                     cluster.characterCount,
                     outlineGlyphs(cluster.glyphs, origin, unit, shapes),
                     {}};
    if (!cluster.box.isEmpty()) {
        part.ink.outline.addRect(
            {origin + cluster.box.topLeft() * unit, cluster.box.size() * unit});
    }
    for (const std::vector<PlacedGlyph>& glyphs : cluster.begun) {
        part.begun.push_back(outlineGlyphs(glyphs, origin, unit, shapes));
    }
    return part;
}

// Adds the parts from `first` on to the groups, ink and cost.
void groupParts(TextOutline& text, std::size_t first) {
    QRectF covered = text.groups.empty() ? QRectF() : text.groups.back().outline.boundingRect();
    for (std::size_t i = first; i < text.parts.size(); ++i) {
        const OutlinePart& part = text.parts[i];
        for (const GlyphPicture& picture : part.ink.pictures) {
            text.ink |= picture.place;
            text.hasPictures = true;
        }
        for (const OutlineInk& begun : part.begun) {
            text.ink |= begun.outline.boundingRect();
        }
        const QRectF box = part.ink.outline.boundingRect();
        text.ink |= box;
        text.cost += part.ink.outline.elementCount() +
                     elementsPerPicture * static_cast<int>(part.ink.pictures.size());
        if (!text.groups.empty() && (part.ink.outline.isEmpty() || covered.intersects(box))) {
            ++text.groups.back().partCount;
            text.groups.back().outline.addPath(part.ink.outline);
            covered |= box;
        } else {
            text.groups.push_back({i, 1, part.ink.outline});
            covered = box;
        }
    }
}

QSize wholePixels(const QRectF& rect) {
    return {std::max(qCeil(rect.width()), 1), std::max(qCeil(rect.height()), 1)};
}

void paintPictures(QPainter& painter, const OutlineInk& ink, ReducedPictures& pictures) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (const GlyphPicture& picture : ink.pictures) {
        const QRectF onDevice = painter.deviceTransform().mapRect(picture.place);
        painter.drawImage(picture.place, pictures.inSize(picture.picture, wholePixels(onDevice)));
    }
}

void paintPicturesOnPixels(QPainter& painter, const OutlineInk& ink, ReducedPictures& pictures) {
    const QTransform transform = painter.transform();
    for (const GlyphPicture& picture : ink.pictures) {
        const QRectF onDevice = transform.mapRect(picture.place);
        const QRect place(onDevice.topLeft().toPoint(), wholePixels(onDevice));
        painter.resetTransform();
        painter.drawImage(place, pictures.inSize(picture.picture, place.size()));
        painter.setTransform(transform);
    }
}

// What stands in the place of a part after that many keystrokes; null for nothing.
const OutlineInk* inkAfter(const OutlinePart& part, qsizetype characters) {
    const qsizetype typed = characters - part.firstCharacter;
    if (typed >= part.characterCount) {
        return &part.ink;
    }
    const auto begun = static_cast<std::size_t>(typed);
    return typed > 0 && begun <= part.begun.size() ? &part.begun[begun - 1] : nullptr;
}

void paintBegunGroup(QPainter& painter, std::span<const OutlinePart> parts, qsizetype characters,
                     const QColor& color, ReducedPictures& pictures) {
    QPainterPath whole;
    whole.setFillRule(Qt::WindingFill);
    for (const OutlinePart& part : parts) {
        if (const OutlineInk* ink = inkAfter(part, characters)) {
            whole.addPath(ink->outline);
            paintPictures(painter, *ink, pictures);
        }
    }
    painter.fillPath(whole, color);
}

} // namespace

const GlyphShapes::Shape& GlyphShapes::shapeOf(const PlacedGlyph& glyph) {
    const std::pair key(Glyph(glyph.face, glyph.index), glyph.movedEdges);
    auto known = shapes_.find(key);
    if (known == shapes_.end()) {
        Shape shape{glyph.face.pathForGlyph(glyph.index), {}};
        if (shape.outline.isEmpty()) {
            shape.drawn = drawGlyph(drawnFace(glyph.face), glyph.index);
        } else if (glyph.movedEdges != 0) {
            shape.outline = withMovedEdges(shape.outline, glyph.movedEdges);
        }
        known = shapes_.insert(key, shape);
    }
    return *known;
}

const QImage& ReducedPictures::inSize(const QImage& picture, QSize size) {
    if (size.width() >= picture.width()) {
        return picture;
    }
    QImage& reduced = reduced_[{picture.cacheKey(), size.width()}];
    if (reduced.isNull()) {
        // A bilinear reduction by more than half would skip pixels.
        reduced = picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    return reduced;
}

QPainterPath wholePath(const TextOutline& text) {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const OutlinePart& part : text.parts) {
        path.addPath(part.ink.outline);
    }
    return path;
}

PlacedRows placeRows(const TextLayout& layout, double unit, double maxWidth) {
    PlacedRows placed;
    TextOutline& text = placed.frame;
    text.characterCount = layout.characterCount;
    for (const TextRow& row : layout.rows) {
        const double width = row.width * unit;
        const double scale = maxWidth > 0 && width > maxWidth ? maxWidth / width : 1;
        placed.places.push_back({{}, unit * scale});
        text.size.setWidth(std::max(text.size.width(), width * scale));
    }
    double top = 0;
    for (std::size_t i = 0; i < layout.rows.size(); ++i) {
        const TextRow& row = layout.rows[i];
        RowPlace& place = placed.places[i];
        const double baseline = top + row.ascent * place.unit;
        if (i == 0) {
            text.baseline = baseline;
        }
        const double left = layout.rightToLeft ? text.size.width() - row.width * place.unit : 0;
        place.origin = {left, baseline};
        top = baseline + row.descent * place.unit;
    }
    text.size.setHeight(top);
    return placed;
}

void addClusters(TextOutline& text, std::span<const GlyphCluster> clusters, const RowPlace& place,
                 GlyphShapes& shapes) {
    const std::size_t first = text.parts.size();
    for (const GlyphCluster& cluster : clusters) {
        text.parts.push_back(outlineCluster(cluster, place.origin, place.unit, shapes));
    }
    groupParts(text, first);
}

TextOutline outlineOf(const RowLayout& layout, PlacedRows placed, GlyphShapes& shapes) {
    for (std::size_t i = 0; i < placed.places.size(); ++i) {
        const RowPlace& place = placed.places[i];
        addClusters(placed.frame, layout.row(i, place.unit).clusters, place, shapes);
    }
    return std::move(placed.frame);
}

qsizetype LateOutline::read(qsizetype most) {
    qsizetype count = 0;
    while (count < most && !isRead()) {
        if (!clusters_) {
            clusters_ = clustersOf_(row_, places_[row_].unit);
            cluster_ = 0;
        }
        const std::size_t next =
            std::min(static_cast<std::size_t>(most - count), clusters_->size() - cluster_);
        addClusters(outline_, std::span(*clusters_).subspan(cluster_, next), places_[row_],
                    *shapes_);
        count += static_cast<qsizetype>(next);
        cluster_ += next;
        if (cluster_ == clusters_->size()) {
            clusters_.reset();
            ++row_;
        }
    }
    if (isRead()) {
        clustersOf_ = nullptr;
        shapes_.reset();
    }
    return count;
}

const TextOutline& LateOutline::whole() {
    if (!isRead()) {
        read(std::numeric_limits<qsizetype>::max());
    }
    return outline_;
}

void paintOutline(QPainter& painter, const TextOutline& text, const QColor& color) {
    ReducedPictures pictures;
    paintTyped(painter, text, text.characterCount, color, pictures);
}

void paintPart(QPainter& painter, const OutlinePart& part, qsizetype characters,
               const QColor& color, ReducedPictures& pictures) {
    if (const OutlineInk* ink = inkAfter(part, characters)) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(ink->outline, color);
        paintPicturesOnPixels(painter, *ink, pictures);
    }
}

void paintTyped(QPainter& painter, const TextOutline& text, qsizetype characters,
                const QColor& color, ReducedPictures& pictures) {
    painter.setRenderHint(QPainter::Antialiasing);
    for (const OutlineGroup& group : text.groups) {
        const OutlinePart* first = &text.parts[group.firstPart];
        const OutlinePart* last = first + (group.partCount - 1);
        if (last->firstCharacter + last->characterCount <= characters) {
            painter.fillPath(group.outline, color);
            for (const OutlinePart* part = first; part <= last; ++part) {
                paintPictures(painter, part->ink, pictures);
            }
            continue;
        }
        paintBegunGroup(painter, {first, last + 1}, characters, color, pictures);
    }
}

} // namespace morrowleaf
