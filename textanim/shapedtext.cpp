// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/shapedtext.h"

#include "textanim/paintoutline.h"
#include "textanim/textlayout.h"
#include "textanim/textoutline.h"

#include <QPainter>

namespace morrowleaf {

ShapedText::ShapedText()
    : outline_(std::make_shared<TextOutline>()) {}

ShapedText::ShapedText(const QString& text, const TextFont& font, double tracking,
                       double maxWidth) {
    TextOutline outline;
    if (font.size > 0) {
        const double unit = font.size / shapingSize;
        outline =
            outlineOf(layOut(text, font.face, tracking / unit, maxWidth / unit, LineBreaks::Kept),
                      unit, maxWidth);
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

} // namespace morrowleaf
