#include "textanim/revealline.h"

#include "textanim/handwriting.h"
#include "textanim/lettering.h"
#include "textanim/shapedtext.h"
#include "textanim/stagger.h"

#include <QPainter>

#include <cmath>

namespace morrowleaf {

namespace {

// Length at which a contour is cut for the pen, as a share of the size.
constexpr double stretchShare = 0.75;

double scaleOf(const QTransform& device) {
    return std::sqrt(std::abs(device.determinant()));
}

LineShapes shapesOf(const RevealLine::Parts& parts) {
    if (parts.style == TextAnim::Handwrite) {
        HandwrittenLine line = handwrittenLine(parts.text, parts.strokeFont, parts.maxWidth);
        PenTrace trace = penTrace(wholePath(line.text), stretchShare * parts.strokeFont.size);
        return {std::move(line.text), std::move(trace), line.penWidth};
    }
    return {ShapedText(parts.text, parts.font, 0, parts.maxWidth).outline(), {}, 0};
}

} // namespace

struct RevealLine::Private {
    Parts parts;
    LineShapes shapes;
    double delay = 0;

    // The last picture, for repaints while nothing changed.
    struct Kept {
        LineStage stage;
        double scale = 0;
        PlacedPicture frame;
    };
    mutable std::optional<Kept> kept;
    mutable LineCanvas canvas;

    LineStage stageAt(double seconds) const {
        const double since = seconds - delay;
        const qint64 length = shapes.text.characterCount;
        return {revealValues(parts.style, since),
                parts.style == TextAnim::Typewriter ? typedCharacters(since, length) : length};
    }

    bool visible(const LineStage& stage) const {
        return !shapes.text.ink.isEmpty() && stage.values.opacity > 0 && stage.typed > 0 &&
               (stage.values.ink > 0 || stage.values.traced > 0);
    }

    bool hasFrame(const LineStage& stage, double scale) const {
        return kept && kept->scale == scale && kept->stage == stage;
    }

    const PlacedPicture& frameAt(const LineStage& stage, double scale) const {
        if (!hasFrame(stage, scale)) {
            kept = Kept{stage, scale,
                        lineFrame(shapes, stage, scale, parts.color, parts.shadow, canvas)};
        }
        if (stage == LineStage{{}, shapes.text.characterCount} && parts.shadow.opacity > 0) {
            // At rest only the finished picture is needed.
            canvas.pen.reset();
            canvas.letters = {};
            canvas.ink = {};
        }
        return kept->frame;
    }
};

RevealLine::RevealLine(const Parts& parts)
    : d_(new Private{parts, shapesOf(parts), lineDelay(parts.style, parts.index), {}, {}}) {}

RevealLine::~RevealLine() = default;
RevealLine::RevealLine(RevealLine&&) noexcept = default;
RevealLine& RevealLine::operator=(RevealLine&&) noexcept = default;

const RevealLine::Parts& RevealLine::parts() const {
    return d_->parts;
}
double RevealLine::delay() const {
    return d_->delay;
}
QSizeF RevealLine::size() const {
    return d_->shapes.text.size;
}

void RevealLine::paint(QPainter& painter, QPointF topLeft, double seconds) const {
    const LineStage stage = d_->stageAt(seconds);
    if (!d_->visible(stage)) {
        return;
    }
    const QTransform device = painter.deviceTransform();
    const double scale = scaleOf(device);
    if (!(scale > 0)) {
        return;
    }
    const PlacedPicture& frame = d_->frameAt(stage, scale);
    painter.save();
    if (device.type() <= QTransform::TxScale && device.m11() > 0 && device.m22() > 0) {
        // Pixel on pixel. The resting place is on whole pixels, so that the
        // letters keep their shape from line to line.
        const QPoint origin = device.map(topLeft).toPoint();
        painter.resetTransform();
        painter.setTransform(painter.deviceTransform().inverted());
        painter.drawImage(origin + frame.origin, frame.picture);
    } else {
        painter.translate(topLeft);
        painter.scale(1 / scale, 1 / scale);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(frame.origin, frame.picture);
    }
    painter.restore();
}

void RevealLine::prepare(const QTransform& device, double seconds) const {
    if (!isPrepared(device, seconds)) {
        d_->frameAt(d_->stageAt(seconds), scaleOf(device));
    }
}

bool RevealLine::isPrepared(const QTransform& device, double seconds) const {
    const LineStage stage = d_->stageAt(seconds);
    const double scale = scaleOf(device);
    return !d_->visible(stage) || !(scale > 0) || d_->hasFrame(stage, scale);
}

QRectF RevealLine::paintedRect(double seconds) const {
    const LineStage stage = d_->stageAt(seconds);
    if (!d_->visible(stage)) {
        return {};
    }
    // Room for whole pixels, also where the screen has fewer than points.
    return lineRect(d_->shapes, stage, d_->parts.shadow).adjusted(-3, -3, 3, 3);
}

bool RevealLine::changesBetween(double from, double to) const {
    const LineStage before = d_->stageAt(from);
    const LineStage after = d_->stageAt(to);
    return before != after && (d_->visible(before) || d_->visible(after));
}

double RevealLine::settledAfter() const {
    if (d_->shapes.text.ink.isEmpty()) {
        return 0;
    }
    if (d_->parts.style != TextAnim::Typewriter) {
        return d_->delay + revealDuration(d_->parts.style);
    }
    const qint64 length = d_->shapes.text.characterCount;
    double seconds = d_->delay + typingDuration(length);
    while (d_->stageAt(seconds).typed < length) {
        seconds = std::nextafter(seconds, seconds + 1);
    }
    return seconds;
}

} // namespace morrowleaf
