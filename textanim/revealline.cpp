// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/revealline.h"

#include "textanim/begunglyphs.h"
#include "textanim/blurredlayer.h"
#include "textanim/handwriting.h"
#include "textanim/letters.h"
#include "textanim/motion.h"
#include "textanim/stagger.h"
#include "textanim/textlayout.h"
#include "textanim/typewriter.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <optional>

namespace morrowleaf {

namespace {

double scaleOf(const QTransform& device) {
    return std::sqrt(std::abs(device.determinant()));
}

LateOutline lateOutline(const RevealLine::Parts& parts,
                        const std::shared_ptr<GlyphShapes>& shapes) {
    const bool isWritten = parts.style == TextAnim::Handwrite;
    const bool isTyped = parts.style == TextAnim::Typewriter && !parts.isStill;
    const TextFont& font = isWritten ? parts.strokeFont : parts.font;
    if (!(font.size > 0)) {
        return {};
    }
    const double unit = font.size / shapingSize;
    const auto breaks = isWritten && parts.maxWidth <= 0 ? LineBreaks::Ignored : LineBreaks::Kept;
    const auto layout = std::make_shared<RowLayout>(parts.text, font.face, 0, parts.maxWidth / unit,
                                                    breaks, parts.pieces);
    const auto clustersOf = [layout, face = font.face, isTyped](std::size_t index,
                                                                double inPoints) {
        TextRow row = layout->row(index, inPoints);
        if (isTyped) {
            const auto& [text, firstCharacter, count] = layout->text(index);
            addBegunGlyphs(row, text, firstCharacter, face);
        }
        return std::move(row.clusters);
    };
    return {isWritten ? placeHandwritten(layout->rows(), font, parts.maxWidth)
                      : placeRows(layout->rows(), unit, parts.maxWidth),
            clustersOf, shapes};
}

std::unique_ptr<LinePainter> painterFor(const RevealLine::Parts& parts,
                                        const std::shared_ptr<GlyphShapes>& shapes) {
    LateOutline text = lateOutline(parts, shapes);
    if (parts.isStill) {
        return motionPainter(std::move(text), appear());
    }
    switch (parts.style) {
    case TextAnim::Fade:
        break;
    case TextAnim::Handwrite:
        return handwritingPainter(std::move(text), parts.strokeFont.size);
    case TextAnim::Typewriter:
        return typewriterPainter(std::move(text));
    case TextAnim::Rise:
        return motionPainter(std::move(text), rise());
    case TextAnim::Blur:
        return motionPainter(std::move(text), blur());
    }
    return motionPainter(std::move(text), fade());
}

// Whether anything of a text can be seen.
bool hasInk(const QString& text) {
    return std::ranges::any_of(text, [](QChar unit) {
        return !unit.isSpace() && unit.category() != QChar::Other_Control;
    });
}

} // namespace

struct RevealLine::Private {
    Private(const Parts& p, const std::shared_ptr<GlyphShapes>& shapes)
        : parts(p)
        , painter(painterFor(p, shapes))
        , delay(p.isStill ? 0 : lineDelay(p.style, p.index)) {}

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

RevealLine::RevealLine(const Parts& parts)
    : RevealLine(parts, std::make_shared<GlyphShapes>()) {}

RevealLine::RevealLine(const Parts& parts, const std::shared_ptr<GlyphShapes>& shapes)
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
    return d_->painter->text().size();
}
qsizetype RevealLine::readLetters() const {
    return d_->painter->text().readLetters();
}
qsizetype RevealLine::readAhead(qsizetype most) const {
    return d_->painter->text().read(most);
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
    if (!hasInk(d_->parts.text)) {
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
