#pragma once

#include <QColor>

class QPainter;

namespace morrowleaf {

struct GlyphPicture;
struct TextOutline;

// Both draw with the origin of the text at the painter's origin.
void paintOutline(QPainter& painter, const TextOutline& text, const QColor& color);
void paintPicture(QPainter& painter, const GlyphPicture& picture);

} // namespace morrowleaf
