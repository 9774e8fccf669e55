#include "textanim/handwriting.h"

#include "textanim/textlayout.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace morrowleaf {

namespace {

// Forgives what the layout's fixed-point numbers add to a whole width.
double ceiling(double length) {
    return std::ceil(length - 1e-3);
}

TextOutline outlineAt(const TextLayout& layout, const TextFont& font, double size) {
    const TextRow& row = layout.rows.front();
    const double unit = size / shapingSize;
    const QSizeF place(ceiling(row.width * unit), ceiling((row.ascent + row.descent) * unit));
    const double baseline = place.height() - descentOf(rawFace(font.face)) * unit;
    TextOutline text = outlineRow(layout, {0, baseline}, unit);
    text.size = place;
    text.baseline = baseline;
    return text;
}

} // namespace

double penWidth(double size) {
    return std::max(0.018 * size, 0.7);
}

HandwrittenLine handwrittenLine(const QString& text, const TextFont& font, double maxWidth) {
    if (!(font.size > 0)) {
        return {};
    }
    const TextLayout layout = layOut(text, font.face, 0, 0, LineBreaks::Ignored);
    const double width = ceiling(layout.rows.front().width * font.size / shapingSize);
    double size = font.size;
    if (maxWidth > 0 && width > maxWidth) {
        size = std::max(std::floor(maxWidth), 1.0) * shapingSize / layout.rows.front().width;
    }
    return {outlineAt(layout, font, size), penWidth(size)};
}

QSizeF handwrittenLineSize(const QString& text, const TextFont& font, double maxWidth) {
    return handwrittenLine(text, font, maxWidth).text.size;
}

GlyphPath glyphPath(const QString& text, const TextFont& font) {
    const TextOutline line = handwrittenLine(text, font).text;
    const QTransform upwards(1, 0, 0, -1, 0, line.size.height());
    GlyphPath result{upwards.map(wholePath(line)), line.size};
    result.path.setFillRule(Qt::WindingFill);
    return result;
}

} // namespace morrowleaf
