// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/shapedtext.h"

#include "textanim/textlayout.h"
#include "textanim/textoutline.h"

#include <QPainter>

namespace morrowleaf {

ShapedText::ShapedText()
    : outline_(std::make_shared<TextOutline>()) {}

ShapedText::ShapedText(const QString& text, const TextFont& font, double tracking,
                       double maxWidth) {
    GlyphShapes shapes;
    TextOutline outline;
    if (font.size > 0) {
        const double unit = font.size / shapingSize;
        const RowLayout layout(text, font.face, tracking / unit, maxWidth / unit, LineBreaks::Kept);
        outline = outlineOf(layout, placeRows(layout.rows(), unit, maxWidth), shapes);
        lastTracking_ = layout.rows().lastTracking * unit;
    }
    outline_ = std::make_shared<TextOutline>(std::move(outline));
}

QSizeF ShapedText::size() const {
    return outline_->size;
}
double ShapedText::baseline() const {
    return outline_->baseline;
}

void ShapedText::paint(QPainter& painter, QPointF topLeft, const QColor& color) const {
    painter.save();
    painter.translate(topLeft);
    paintOutline(painter, *outline_, color);
    painter.restore();
}

void KeptText::paint(QPainter& painter, const ShapedText& text, const QColor& color) {
    const Look look{painter.deviceTransform(), color};
    if (last_ != look) {
        last_ = look;
        picture_ = {};
        text.paint(painter, {}, color);
        return;
    }
    if (picture_.isNull()) {
        const QRect rect =
            look.device.mapRect(text.outline().ink).toAlignedRect().adjusted(-1, -1, 1, 1);
        corner_ = rect.topLeft();
        picture_ = QImage(rect.size(), QImage::Format_ARGB32_Premultiplied);
        picture_.fill(Qt::transparent);
        QPainter aside(&picture_);
        aside.setTransform(look.device * QTransform::fromTranslate(-corner_.x(), -corner_.y()));
        text.paint(aside, {}, color);
    }
    painter.save();
    painter.resetTransform();
    painter.setTransform(painter.deviceTransform().inverted());
    painter.drawImage(corner_, picture_);
    painter.restore();
}

} // namespace morrowleaf
