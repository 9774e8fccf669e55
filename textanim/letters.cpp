// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/letters.h"

#include "textanim/blurredlayer.h"

#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace morrowleaf {

namespace {

// A standard deviation, in pixels, below which a blur cannot be seen.
constexpr double sharpBelow = 0.05;

// Above this cost, the outlines of a text are filled only once.
constexpr int filledOnceAbove = 8000;

// Maps points of the line at rest to points with effects.
QTransform placing(const TextOutline& text, const LineEffects& effects) {
    const QPointF center(text.size.width() / 2, text.size.height() / 2);
    return QTransform::fromTranslate(-center.x(), -center.y()) *
           QTransform::fromScale(effects.scale, effects.scale) *
           QTransform::fromTranslate(center.x(), center.y() + effects.offset);
}

// Maps points of the line to cells of `cell` device pixels.
QTransform onDevice(const TextOutline& text, const LineEffects& effects, double scale, int cell) {
    return placing(text, effects) * QTransform::fromScale(scale, scale) *
           QTransform::fromTranslate(0, baselineShift(text, scale)) *
           QTransform::fromScale(1.0 / cell, 1.0 / cell);
}

class MotionPainter final : public LinePainter {
public:
    MotionPainter(LateOutline text, const Motion& motion)
        : letters_(std::move(text))
        , motion_(motion) {}

    LateOutline& text() override { return letters_.text(); }
    double duration() const override { return motion_.duration; }
    bool looksSame(double one, double other) const override {
        return one == other || motion_.effectsAt(one) == motion_.effectsAt(other);
    }
    QRectF rect(double seconds) override {
        const LineEffects effects = motion_.effectsAt(seconds);
        return effects.opacity > 0 ? letters_.rect(effects) : QRectF();
    }
    PlacedPicture draw(double seconds, double scale, const QColor& color) override {
        return letters_.draw(motion_.effectsAt(seconds), scale, color);
    }
    void releaseMemory() override { letters_.releaseMemory(); }

private:
    Letters letters_;
    Motion motion_;
};

} // namespace

std::unique_ptr<LinePainter> motionPainter(LateOutline text, const Motion& motion) {
    return std::make_unique<MotionPainter>(std::move(text), motion);
}

double baselineShift(const TextOutline& text, double scale) {
    const double baseline = text.baseline * scale;
    return std::round(baseline) - baseline;
}

QRect deviceRect(const QRectF& points, double scale) {
    return QRectF(points.topLeft() * scale, points.size() * scale).toAlignedRect();
}

QImage uninitialisedPicture(QSize size, std::vector<QRgb>& memory) {
    memory.resize(static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height()));
    return {reinterpret_cast<uchar*>(memory.data()), size.width(), size.height(),
            qsizetype{4} * size.width(), QImage::Format_ARGB32_Premultiplied};
}

QImage transparentPicture(QSize size, std::vector<QRgb>& memory) {
    QImage picture = uninitialisedPicture(size, memory);
    std::ranges::fill(memory, 0);
    return picture;
}

Letters::Letters(LateOutline text, double margin)
    : text_(std::move(text))
    , margin_(margin) {}

QRectF Letters::rect(const LineEffects& effects) {
    const TextOutline& text = outline();
    if (text.ink.isEmpty()) {
        return {};
    }
    const QRectF ink =
        placing(text, effects).mapRect(text.ink.adjusted(-margin_, -margin_, margin_, margin_));
    const double halo = 3 * effects.blurRadius * effects.scale;
    return ink.adjusted(-halo, -halo, halo, halo);
}

bool Letters::isIntricate() {
    return outline().cost > filledOnceAbove;
}

PlacedPicture Letters::draw(const LineEffects& effects, double scale, const QColor& color) {
    const double sigma = effects.blurRadius * effects.scale * scale;
    // Blurring all channels of a screen full of pictures would take too long.
    const bool isBlurred = sigma > sharpBelow && !(outline().hasPictures && isIntricate());
    if (isBlurred) {
        return drawBlurred(effects, scale, sigma, color);
    }
    const QRect area = deviceRect(rect(effects), scale);
    PlacedPicture result{paint(effects, text_.characterCount(), scale, 1, area, color),
                         area.topLeft()};
    if (effects.opacity < 1) {
        QPainter painter(&result.picture);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.fillRect(result.picture.rect(),
                         QColor::fromRgbF(0, 0, 0, static_cast<float>(effects.opacity)));
    }
    return result;
}

PlacedPicture Letters::drawBeginning(qint64 characters, double scale, const QColor& color) {
    const QRect area = deviceRect(rect({}), scale);
    return {paint({}, characters, scale, 1, area, color), area.topLeft()};
}

QImage Letters::paint(const LineEffects& effects, qint64 characters, double scale, int cell,
                      QRect rect, const QColor& color) {
    QImage picture = transparentPicture(rect.size(), memory_);
    QPainter painter(&picture);
    painter.translate(-rect.topLeft());
    if (isIntricate()) {
        paintFilled(painter, effects, characters, scale, cell, color);
        return picture;
    }
    painter.setTransform(onDevice(outline(), effects, scale, cell), true);
    paintTyped(painter, outline(), characters, color, pictures_);
    return picture;
}

const PlacedPicture& Letters::filled(qint64 characters, double scale, const QColor& color) {
    const auto& parts = outline().parts;
    if (!filled_ || filled_->scale != scale || filled_->color != color ||
        (filled_->parts > 0 &&
         parts[filled_->parts - 1].firstCharacter + parts[filled_->parts - 1].characterCount >
             characters)) {
        const QRect area = deviceRect(rect({}), scale);
        filled_ =
            Filled{scale,
                   color,
                   0,
                   {QImage(area.size(), QImage::Format_ARGB32_Premultiplied), area.topLeft()}};
        filled_->picture.picture.fill(Qt::transparent);
    }
    QPainter painter(&filled_->picture.picture);
    painter.translate(-filled_->picture.origin);
    painter.setTransform(onDevice(outline(), {}, scale, 1), true);
    for (std::size_t& i = filled_->parts; i < parts.size(); ++i) {
        if (parts[i].firstCharacter + parts[i].characterCount > characters) {
            break;
        }
        paintPart(painter, parts[i], characters, color, pictures_);
    }
    return filled_->picture;
}

void Letters::paintFilled(QPainter& painter, const LineEffects& effects, qint64 characters,
                          double scale, int cell, const QColor& color) {
    const PlacedPicture& whole = filled(characters, scale, color);
    const QTransform atRest = onDevice(outline(), {}, scale, 1);
    painter.save();
    painter.setTransform(atRest.inverted() * onDevice(outline(), effects, scale, cell), true);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // A bilinear reduction by more than half would skip pixels.
    painter.drawImage(QRectF(whole.origin, whole.picture.size()),
                      cell > 1
                          ? whole.picture.scaled(whole.picture.size() / cell, Qt::IgnoreAspectRatio,
                                                 Qt::SmoothTransformation)
                          : whole.picture);
    painter.restore();
    painter.setTransform(onDevice(outline(), effects, scale, cell), true);
    if (filled_->parts < outline().parts.size()) {
        paintPart(painter, outline().parts[filled_->parts], characters, color, pictures_);
    }
}

void Letters::releaseMemory() {
    memory_ = {};
    filled_.reset();
    pictures_ = {};
}

PlacedPicture Letters::drawBlurred(const LineEffects& effects, double scale, double sigma,
                                   const QColor& color) {
    const int cell = BlurredLayer::cellSize(sigma);
    // Draws the sharp letters at the reduced resolution from the start.
    LineEffects sharp = effects;
    sharp.blurRadius = 0;
    const QRect box = deviceRect(rect(sharp), scale);
    const QPoint corner(static_cast<int>(std::floor(static_cast<double>(box.left()) / cell)),
                        static_cast<int>(std::floor(static_cast<double>(box.top()) / cell)));
    const QSize cells(box.right() / cell - corner.x() + 2, box.bottom() / cell - corner.y() + 2);
    const bool colored = outline().hasPictures;
    const QImage small = paint(sharp, text_.characterCount(), scale, cell, {corner, cells},
                               colored ? color : QColor(Qt::black));
    const BlurredLayer layer(
        small, corner * cell, cell, sigma,
        colored ? std::vector{Channel::Blue, Channel::Green, Channel::Red, Channel::Alpha}
                : std::vector{Channel::Alpha});
    const QRect area = deviceRect(rect(effects), scale);
    PlacedPicture result{uninitialisedPicture(area.size(), memory_), area.topLeft()};
    layer.paint(color, effects.opacity * (colored ? 1 : color.alphaF()), result.picture,
                result.origin);
    return result;
}

} // namespace morrowleaf
