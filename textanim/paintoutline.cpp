// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/paintoutline.h"

#include "textanim/textoutline.h"

#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <span>

namespace morrowleaf {

namespace {

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

// Characters that share a glyph show its share, from where the text begins.
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
