// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/revealline.h"

#include "textanim/begunglyphs.h"
#include "textanim/blurredlayer.h"
#include "textanim/handwriting.h"
#include "textanim/letters.h"
#include "textanim/motion.h"
#include "textanim/shapedtext.h"
#include "textanim/stagger.h"
#include "textanim/textlayout.h"
#include "textanim/typewriter.h"

#include <QPainter>

#include <cmath>
#include <optional>

namespace morrowleaf {

namespace {

double scaleOf(const QTransform& device) {
    return std::sqrt(std::abs(device.determinant()));
}

TextOutline typedOutline(const RevealLine::Parts& parts, GlyphShapes& shapes) {
    if (!(parts.font.size > 0)) {
        return {};
    }
    const double unit = parts.font.size / shapingSize;
    TextLayout layout =
        layOut(parts.text, parts.font.face, 0, parts.maxWidth / unit, LineBreaks::Kept);
    addBegunGlyphs(layout, parts.text, parts.font.face);
    return outlineOf(layout, unit, parts.maxWidth, shapes);
}

std::unique_ptr<LinePainter> painterFor(const RevealLine::Parts& parts, GlyphShapes& shapes) {
    const auto inType = [&] {
        return ShapedText(parts.text, parts.font, 0, parts.maxWidth, shapes).outline();
    };
    switch (parts.style) {
    case TextAnim::Fade:
        break;
    case TextAnim::Handwrite:
        return handwritingPainter(parts.text, parts.strokeFont, parts.maxWidth, shapes);
    case TextAnim::Typewriter:
        return typewriterPainter(typedOutline(parts, shapes));
    case TextAnim::Rise:
        return motionPainter(inType(), rise());
    case TextAnim::Blur:
        return motionPainter(inType(), blur());
    }
    return motionPainter(inType(), fade());
}

} // namespace

struct RevealLine::Private {
    Private(const Parts& p, GlyphShapes& shapes)
        : parts(p)
        , painter(painterFor(p, shapes))
        , delay(lineDelay(p.style, p.index)) {}

    Parts parts;
    std::unique_ptr<LinePainter> painter;
    double delay;

    // The last picture, for repaints while nothing changes.
    struct Kept {
        double since = 0; // seconds since the end of the delay
        double scale = 0;
        PlacedPicture frame;
    };
    mutable std::optional<Kept> kept;
    mutable std::vector<QRgb> memory; // of a picture with its shadow

    // The functions below take the seconds since the end of the delay.

    bool isVisible(double since) const { return !painter->rect(since).isEmpty(); }

    bool isAtRest(double since) const { return painter->looksSame(since, painter->duration() + 1); }

    bool hasFrame(double since, double scale) const {
        return kept && kept->scale == scale && painter->looksSame(kept->since, since);
    }

    // The rectangle that letters and shadow touch, in points from the top left of the line.
    QRectF rect(double since) const {
        const QRectF own = painter->rect(since);
        if (own.isEmpty() || parts.shadow.opacity <= 0) {
            return own;
        }
        const double halo = 3 * parts.shadow.radius;
        return own | own.translated(parts.shadow.offset).adjusted(-halo, -halo, halo, halo);
    }

    PlacedPicture draw(double since, double scale) const {
        const LineShadow& shadow = parts.shadow;
        PlacedPicture own = painter->draw(since, scale, parts.color);
        if (shadow.opacity <= 0) {
            return own;
        }
        const QRect area = deviceRect(rect(since), scale);
        PlacedPicture result{uninitialisedPicture(area.size(), memory), area.topLeft()};
        const double sigma = shadow.radius * scale;
        const int cell = BlurredLayer::cellSize(sigma);
        const QPoint offset = (shadow.offset * scale).toPoint();
        const BlurredLayer layer(reducedAlpha(own.picture, cell), own.origin + offset, cell, sigma);
        layer.paint(Qt::black, shadow.opacity, result.picture, result.origin);
        QPainter letters(&result.picture);
        letters.drawImage(own.origin - result.origin, own.picture);
        letters.end();
        return result;
    }

    const PlacedPicture& frameAt(double since, double scale) const {
        if (!hasFrame(since, scale)) {
            kept = Kept{since, scale, draw(since, scale)};
        }
        if (parts.shadow.opacity > 0 && isAtRest(since)) {
            painter->releaseMemory(); // at rest only the finished picture is needed
        }
        return kept->frame;
    }
};

RevealLine::RevealLine(const Parts& parts) {
    GlyphShapes shapes;
    *this = RevealLine(parts, shapes);
}

RevealLine::RevealLine(const Parts& parts, GlyphShapes& shapes)
    : d_(std::make_unique<Private>(parts, shapes)) {}

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
    return d_->painter->text().size;
}

void RevealLine::setColors(const QColor& color, const LineShadow& shadow) {
    if (color == d_->parts.color && shadow == d_->parts.shadow) {
        return;
    }
    d_->parts.color = color;
    d_->parts.shadow = shadow;
    d_->kept.reset();
    d_->painter->releaseMemory();
}

void RevealLine::paint(QPainter& painter, QPointF topLeft, double seconds) const {
    const double since = seconds - d_->delay;
    if (!d_->isVisible(since)) {
        return;
    }
    const QTransform device = painter.deviceTransform();
    const double scale = scaleOf(device);
    if (!(scale > 0)) {
        return;
    }
    const PlacedPicture& frame = d_->frameAt(since, scale);
    painter.save();
    if (device.type() <= QTransform::TxScale && device.m11() > 0 && device.m22() > 0) {
        // Draws without resampling. At rest the line is on whole pixels, so that
        // its letters look the same in every line.
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
        d_->frameAt(seconds - d_->delay, scaleOf(device));
    }
}

bool RevealLine::isPrepared(const QTransform& device, double seconds) const {
    const double since = seconds - d_->delay;
    const double scale = scaleOf(device);
    return !d_->isVisible(since) || !(scale > 0) || d_->hasFrame(since, scale);
}

QRectF RevealLine::paintedRect(double seconds) const {
    const QRectF touched = d_->rect(seconds - d_->delay);
    // Leaves room for rounding to whole pixels, also at device pixel ratios below 1.
    return touched.isEmpty() ? QRectF() : touched.adjusted(-3, -3, 3, 3);
}

bool RevealLine::changesBetween(double from, double to) const {
    const double before = from - d_->delay;
    const double after = to - d_->delay;
    return !d_->painter->looksSame(before, after) &&
           (d_->isVisible(before) || d_->isVisible(after));
}

double RevealLine::settledAfter() const {
    if (d_->painter->text().ink.isEmpty()) {
        return 0;
    }
    double seconds = d_->delay + d_->painter->duration();
    // The sum may be rounded down to an instant just before the line is at rest.
    while (!d_->isAtRest(seconds - d_->delay)) {
        seconds = std::nextafter(seconds, seconds + 1);
    }
    return seconds;
}

} // namespace morrowleaf
