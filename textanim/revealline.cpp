// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/revealline.h"

#include "textanim/blurredlayer.h"
#include "textanim/handwriting.h"
#include "textanim/lettering.h"
#include "textanim/motion.h"
#include "textanim/shapedtext.h"
#include "textanim/stagger.h"

#include <QPainter>

#include <cmath>
#include <optional>

namespace morrowleaf {

namespace {

double scaleOf(const QTransform& device) {
    return std::sqrt(std::abs(device.determinant()));
}

std::unique_ptr<Lettering> letteringOf(const RevealLine::Parts& parts) {
    if (parts.style == TextAnim::Handwrite) {
        return penLettering(parts.text, parts.strokeFont, parts.maxWidth);
    }
    return std::make_unique<TypeLettering>(
        ShapedText(parts.text, parts.font, 0, parts.maxWidth).outline());
}

Motion motionOf(TextAnim style, qint64 characters) {
    switch (style) {
    case TextAnim::Fade:
        break;
    case TextAnim::Handwrite:
        return handwriting();
    case TextAnim::Typewriter:
        return typewriter(characters);
    case TextAnim::Rise:
        return rise();
    case TextAnim::Blur:
        return blur();
    }
    return fade();
}

} // namespace

struct RevealLine::Private {
    explicit Private(const Parts& p)
        : parts(p)
        , letters(letteringOf(p))
        , motion(motionOf(p.style, letters->text().characterCount))
        , delay(lineDelay(p.style, p.index)) {}

    Parts parts;
    std::unique_ptr<Lettering> letters;
    Motion motion;
    double delay;

    // The last picture, for repaints while nothing changed.
    struct Kept {
        RevealValues values;
        double scale = 0;
        PlacedPicture frame;
    };
    mutable std::optional<Kept> kept;
    mutable std::vector<QRgb> memory; // of a picture with its shadow

    RevealValues valuesAt(double seconds) const { return motion.valuesAt(seconds - delay); }

    bool visible(const RevealValues& values) const {
        return !letters->text().ink.isEmpty() && values.opacity > 0 && values.typed > 0 &&
               (values.ink > 0 || values.traced > 0);
    }

    bool hasFrame(const RevealValues& values, double scale) const {
        return kept && kept->scale == scale && kept->values == values;
    }

    // What letters and shadow touch, in points from the top left of the place.
    QRectF rect(const RevealValues& values) const {
        const QRectF own = letters->rect(values);
        if (own.isEmpty() || parts.shadow.opacity <= 0) {
            return own;
        }
        const double halo = 3 * parts.shadow.radius;
        return own | own.translated(parts.shadow.offset).adjusted(-halo, -halo, halo, halo);
    }

    PlacedPicture draw(const RevealValues& values, double scale) const {
        const LineShadow& shadow = parts.shadow;
        PlacedPicture own = letters->draw(values, scale, parts.color);
        if (shadow.opacity <= 0) {
            return own;
        }
        const QRect area = deviceRect(rect(values), scale);
        PlacedPicture result{unpaintedPicture(area.size(), memory), area.topLeft()};
        const double sigma = shadow.radius * scale;
        const int cell = BlurredLayer::cellSize(sigma);
        const QPoint offset = (shadow.offset * scale).toPoint();
        const BlurredLayer layer(reducedAlpha(own.picture, cell), own.origin + offset, cell, sigma);
        layer.paint(Qt::black, shadow.opacity, result.picture, result.origin);
        QPainter painter(&result.picture);
        painter.drawImage(own.origin - result.origin, own.picture);
        painter.end();
        return result;
    }

    const PlacedPicture& frameAt(const RevealValues& values, double scale) const {
        if (!hasFrame(values, scale)) {
            kept = Kept{values, scale, draw(values, scale)};
        }
        if (values == RevealValues{} && parts.shadow.opacity > 0) {
            letters->letGo(); // at rest only the finished picture is needed
        }
        return kept->frame;
    }
};

RevealLine::RevealLine(const Parts& parts)
    : d_(std::make_unique<Private>(parts)) {}

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
    return d_->letters->text().size;
}

void RevealLine::paint(QPainter& painter, QPointF topLeft, double seconds) const {
    const RevealValues values = d_->valuesAt(seconds);
    if (!d_->visible(values)) {
        return;
    }
    const QTransform device = painter.deviceTransform();
    const double scale = scaleOf(device);
    if (!(scale > 0)) {
        return;
    }
    const PlacedPicture& frame = d_->frameAt(values, scale);
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
        d_->frameAt(d_->valuesAt(seconds), scaleOf(device));
    }
}

bool RevealLine::isPrepared(const QTransform& device, double seconds) const {
    const RevealValues values = d_->valuesAt(seconds);
    const double scale = scaleOf(device);
    return !d_->visible(values) || !(scale > 0) || d_->hasFrame(values, scale);
}

QRectF RevealLine::paintedRect(double seconds) const {
    const RevealValues values = d_->valuesAt(seconds);
    if (!d_->visible(values)) {
        return {};
    }
    // Room for whole pixels, also where the screen has fewer than points.
    return d_->rect(values).adjusted(-3, -3, 3, 3);
}

bool RevealLine::changesBetween(double from, double to) const {
    const RevealValues before = d_->valuesAt(from);
    const RevealValues after = d_->valuesAt(to);
    return before != after && (d_->visible(before) || d_->visible(after));
}

double RevealLine::settledAfter() const {
    if (d_->letters->text().ink.isEmpty()) {
        return 0;
    }
    double seconds = d_->delay + d_->motion.duration;
    // The sum may be rounded down to an instant just before the rest.
    while (d_->valuesAt(seconds) != RevealValues{}) {
        seconds = std::nextafter(seconds, seconds + 1);
    }
    return seconds;
}

} // namespace morrowleaf
