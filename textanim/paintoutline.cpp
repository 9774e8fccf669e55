#include "textanim/paintoutline.h"

#include "textanim/textoutline.h"

#include <QPainter>

#include <algorithm>

namespace morrowleaf {

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

void paintOutline(QPainter& painter, const TextOutline& text, const QColor& color) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(text.outline, color);
    for (const GlyphPicture& picture : text.pictures) {
        paintPicture(painter, picture);
    }
}

} // namespace morrowleaf
