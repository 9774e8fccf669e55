#include "textanim/shapedtext.h"

#include "textanim/paintoutline.h"
#include "textanim/shapedtextdata.h"
#include "textanim/textlayout.h"

#include <QPainter>

namespace morrowleaf {

ShapedText::ShapedText()
    : data_(std::make_shared<Data>()) {}

ShapedText::ShapedText(const QString& text, const TextFont& font, double tracking,
                       double maxWidth) {
    auto data = std::make_shared<Data>();
    if (font.size > 0) {
        const double unit = font.size / shapingSize;
        data->text =
            outlineOf(layOut(text, font.face, tracking / unit, maxWidth / unit, LineBreaks::Kept),
                      unit, maxWidth);
    }
    data_ = std::move(data);
}

ShapedText::~ShapedText() = default;
ShapedText::ShapedText(const ShapedText&) = default;
ShapedText& ShapedText::operator=(const ShapedText&) = default;

QSizeF ShapedText::size() const {
    return data_->text.size;
}
double ShapedText::baseline() const {
    return data_->text.baseline;
}

void ShapedText::paint(QPainter& painter, QPointF topLeft, const QColor& color) const {
    painter.save();
    painter.translate(topLeft);
    paintOutline(painter, data_->text, color);
    painter.restore();
}

} // namespace morrowleaf
