#include "textanim/revealline.h"

#include "textanim/paintoutline.h"
#include "textanim/revealvalues.h"
#include "textanim/shapedtext.h"
#include "textanim/shapedtextdata.h"

#include <QPainter>

namespace morrowleaf {

struct RevealLine::Private {
    Parts parts;
    ShapedText text;
};

RevealLine::RevealLine(const Parts& parts)
    : d_(new Private{parts, ShapedText(parts.text, parts.font, 0, parts.maxWidth)}) {}

RevealLine::~RevealLine() = default;
RevealLine::RevealLine(RevealLine&&) noexcept = default;
RevealLine& RevealLine::operator=(RevealLine&&) noexcept = default;

const RevealLine::Parts& RevealLine::parts() const {
    return d_->parts;
}
double RevealLine::delay() const {
    return lineDelay(d_->parts.style, d_->parts.index);
}
QSizeF RevealLine::size() const {
    return d_->text.size();
}

void RevealLine::paint(QPainter& painter, QPointF topLeft, double seconds) const {
    const RevealValues values = revealValues(d_->parts.style, seconds - delay());
    if (values.opacity <= 0) {
        return;
    }
    painter.save();
    painter.setOpacity(painter.opacity() * values.opacity);
    d_->text.paint(painter, topLeft + QPointF(0, values.offset), d_->parts.color);
    painter.restore();
}

QRectF RevealLine::paintedRect(double seconds) const {
    const RevealValues values = revealValues(d_->parts.style, seconds - delay());
    if (values.opacity <= 0 || d_->text.data().text.ink.isEmpty()) {
        return {};
    }
    return d_->text.data().text.ink.translated(0, values.offset).adjusted(-2, -2, 2, 2);
}

bool RevealLine::changesBetween(double from, double to) const {
    return revealValues(d_->parts.style, from - delay()) !=
           revealValues(d_->parts.style, to - delay());
}

double RevealLine::settledAfter() const {
    return delay() + revealDuration(d_->parts.style);
}

} // namespace morrowleaf
