// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/textoutline.h"

#include "textanim/textlayout.h"

#include <QGlyphRun>
#include <QHash>
#include <QPainter>
#include <QTransform>
#include <QtMath>

#include <algorithm>
#include <span>
#include <utility>

namespace morrowleaf {

namespace {

constexpr int pictureSize = 160; // font size for glyphs without an outline, pixels

struct DrawnGlyph {
    QImage picture;  // null for an empty glyph
    QPointF topLeft; // from the glyph's origin, pixels
};

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

// Equal glyphs of a text share one picture.
class GlyphPictures {
public:
    std::optional<GlyphPicture> pictureOf(const PlacedGlyph& glyph, QPointF origin, double unit) {
        auto known = drawn_.constFind({glyph.face, glyph.index});
        if (known == drawn_.constEnd()) {
            known = drawn_.insert({glyph.face, glyph.index}, drawGlyph(glyph.face, glyph.index));
        }
        if (known->picture.isNull()) {
            return std::nullopt;
        }
        const double scale = unit * shapingSize / pictureSize;
        const QPointF corner = origin + glyph.position * unit + known->topLeft * scale;
        return GlyphPicture{known->picture, {corner, QSizeF(known->picture.size()) * scale}};
    }

private:
    QHash<std::pair<QRawFont, quint32>, DrawnGlyph> drawn_;
};

OutlinePart outlineCluster(const GlyphCluster& cluster, QPointF origin, double unit,
                           GlyphPictures& pictures) {
    OutlinePart part{
        cluster.firstCharacter, cluster.characterCount, 0, 0, cluster.rightToLeft, {}, {}};
    part.outline.setFillRule(Qt::WindingFill);
    bool first = true;
    for (const PlacedGlyph& glyph : cluster.glyphs) {
        const QPointF at = origin + glyph.position * unit;
        const QList<QPointF> advances = glyph.face.advancesForGlyphIndexes({glyph.index});
        const double right = at.x() + (advances.isEmpty() ? 0 : advances.front().x() * unit);
        part.left = first ? at.x() : std::min(part.left, at.x());
        part.right = first ? right : std::max(part.right, right);
        first = false;
        const QPainterPath shape = glyph.face.pathForGlyph(glyph.index);
        if (!shape.isEmpty()) {
            part.outline.addPath(
                QTransform::fromTranslate(at.x(), at.y()).scale(unit, unit).map(shape));
        } else if (auto picture = pictures.pictureOf(glyph, origin, unit)) {
            part.right = std::max(part.right, picture->place.right());
            part.pictures.push_back(std::move(*picture));
        }
    }
    return part;
}

void appendRow(TextOutline& text, const TextRow& row, QPointF origin, double unit,
               GlyphPictures& pictures) {
    for (const GlyphCluster& cluster : row.clusters) {
        text.parts.push_back(outlineCluster(cluster, origin, unit, pictures));
    }
}

void groupParts(TextOutline& text) {
    QRectF covered;
    for (std::size_t i = 0; i < text.parts.size(); ++i) {
        const OutlinePart& part = text.parts[i];
        for (const GlyphPicture& picture : part.pictures) {
            text.ink |= picture.place;
            text.hasPictures = true;
        }
        const QRectF box = part.outline.boundingRect();
        text.ink |= box;
        if (!text.groups.empty() && (part.outline.isEmpty() || covered.intersects(box))) {
            ++text.groups.back().partCount;
            text.groups.back().outline.addPath(part.outline);
            covered |= box;
        } else {
            text.groups.push_back({i, 1, part.outline});
            covered = box;
        }
    }
}

void paintPicture(QPainter& painter, const GlyphPicture& picture) {
    // A bilinear reduction by more than half would skip pixels.
    const QRectF onDevice = painter.deviceTransform().mapRect(picture.place);
    const QSize size(std::max(qCeil(onDevice.width()), 1), std::max(qCeil(onDevice.height()), 1));
    const bool reduced = size.width() < picture.picture.width();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(picture.place, reduced ? picture.picture.scaled(size, Qt::IgnoreAspectRatio,
                                                                      Qt::SmoothTransformation)
                                             : picture.picture);
}

// Draws a fraction of a glyph that several characters share, from the side where
// the text begins.
void paintShare(QPainter& painter, const OutlinePart& part, double share, const QColor& color) {
    QRectF shown = part.outline.boundingRect();
    for (const GlyphPicture& picture : part.pictures) {
        shown |= picture.place;
    }
    shown.adjust(-1, -1, 1, 1);
    const double width = share * (part.right - part.left);
    if (part.rightToLeft) {
        shown.setLeft(part.right - width);
    } else {
        shown.setRight(part.left + width);
    }
    painter.save();
    painter.setClipRect(shown, Qt::IntersectClip);
    painter.fillPath(part.outline, color);
    for (const GlyphPicture& picture : part.pictures) {
        paintPicture(painter, picture);
    }
    painter.restore();
}

void paintBegunGroup(QPainter& painter, std::span<const OutlinePart> parts, qsizetype characters,
                     const QColor& color) {
    QPainterPath whole;
    whole.setFillRule(Qt::WindingFill);
    for (const OutlinePart& part : parts) {
        const qsizetype typed = characters - part.firstCharacter;
        if (typed >= part.characterCount) {
            whole.addPath(part.outline);
            for (const GlyphPicture& picture : part.pictures) {
                paintPicture(painter, picture);
            }
        } else if (typed > 0) {
            paintShare(painter, part,
                       static_cast<double>(typed) / static_cast<double>(part.characterCount),
                       color);
        }
    }
    painter.fillPath(whole, color);
}

} // namespace

TextOutline outlineRow(const TextLayout& layout, QPointF origin, double unit) {
    TextOutline text;
    text.characterCount = layout.characterCount;
    GlyphPictures pictures;
    appendRow(text, layout.rows.front(), origin, unit, pictures);
    groupParts(text);
    return text;
}

QPainterPath wholePath(const TextOutline& text) {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const OutlinePart& part : text.parts) {
        path.addPath(part.outline);
    }
    return path;
}

TextOutline outlineOf(const TextLayout& layout, double unit, double maxWidth) {
    TextOutline text;
    text.characterCount = layout.characterCount;
    std::vector<double> scales;
    for (const TextRow& row : layout.rows) {
        const double width = row.width * unit;
        scales.push_back(maxWidth > 0 && width > maxWidth ? maxWidth / width : 1);
        text.size.setWidth(std::max(text.size.width(), width * scales.back()));
    }
    GlyphPictures pictures;
    double top = 0;
    for (std::size_t i = 0; i < layout.rows.size(); ++i) {
        const TextRow& row = layout.rows[i];
        const double rowUnit = unit * scales[i];
        const double baseline = top + row.ascent * rowUnit;
        if (i == 0) {
            text.baseline = baseline;
        }
        const double left = layout.rightToLeft ? text.size.width() - row.width * rowUnit : 0;
        appendRow(text, row, {left, baseline}, rowUnit, pictures);
        top = baseline + row.descent * rowUnit;
    }
    text.size.setHeight(top);
    groupParts(text);
    return text;
}

void paintOutline(QPainter& painter, const TextOutline& text, const QColor& color) {
    paintTyped(painter, text, text.characterCount, color);
}

void paintTyped(QPainter& painter, const TextOutline& text, qsizetype characters,
                const QColor& color) {
    painter.setRenderHint(QPainter::Antialiasing);
    for (const OutlineGroup& group : text.groups) {
        const OutlinePart* first = &text.parts[group.firstPart];
        const OutlinePart* last = first + (group.partCount - 1);
        if (last->firstCharacter + last->characterCount <= characters) {
            painter.fillPath(group.outline, color);
            for (const OutlinePart* part = first; part <= last; ++part) {
                std::ranges::for_each(part->pictures, [&painter](const GlyphPicture& picture) {
                    paintPicture(painter, picture);
                });
            }
            continue;
        }
        paintBegunGroup(painter, {first, last + 1}, characters, color);
    }
}

} // namespace morrowleaf
