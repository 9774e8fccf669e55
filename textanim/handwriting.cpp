// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/handwriting.h"

#include "base/curves.h"
#include "textanim/letters.h"
#include "textanim/motion.h"
#include "textanim/pentrace.h"
#include "textanim/textlayout.h"

#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <optional>

namespace morrowleaf {

namespace {

// Near the end of the tracing the letters fill with ink.
constexpr double traceDuration = 1.25; // seconds
constexpr double inkStart = 0.7 * traceDuration;
constexpr double inkDuration = 0.45 * traceDuration;

// Above this cost, the outlines of a text are too many to be traced in every frame.
constexpr int mostTraced = 20'000;

// The length at which a contour is cut for the pen, as a fraction of the font size.
constexpr double stretchShare = 0.75;

// Blends the pen's coverage into the letters; both have the same colour.
void addPen(QImage& letters, const QImage& pen, const QColor& color) {
    const QRgb ink = qPremultiply(color.rgba());
    for (int y = 0; y < pen.height(); ++y) {
        const uchar* coverage = pen.constScanLine(y);
        auto* pixels = reinterpret_cast<QRgb*>(letters.scanLine(y));
        for (int x = 0; x < pen.width(); ++x) {
            if (coverage[x] == 0) {
                continue;
            }
            const auto room = static_cast<unsigned>(255 - qAlpha(pixels[x]));
            const unsigned share = (coverage[x] * room + 127) / 255;
            const auto part = [share](int channel) {
                return (static_cast<unsigned>(channel) * share + 127) / 255;
            };
            pixels[x] += part(qBlue(ink)) | part(qGreen(ink)) << 8 | part(qRed(ink)) << 16 |
                         part(qAlpha(ink)) << 24;
        }
    }
}

class HandwritingPainter final : public LinePainter {
public:
    HandwritingPainter(LateOutline text, double size)
        : size_(size)
        , penWidth_(penWidth(size))
        , letters_(std::move(text), penWidth_ / 2 + 1) {}

    LateOutline& text() override { return letters_.text(); }
    double duration() const override { return handwritingDuration(); }
    bool looksSame(double one, double other) const override {
        return one == other || penProgress(one) == penProgress(other);
    }
    QRectF rect(double seconds) override {
        const PenProgress progress = penProgress(seconds);
        return progress.traced > 0 || progress.ink > 0 ? letters_.rect({}) : QRectF();
    }

    PlacedPicture draw(double seconds, double scale, const QColor& color) override {
        const PenProgress progress = penProgress(seconds);
        const TextOutline& outline = letters_.outline();
        if (!trace_) {
            trace_ = outline.cost > mostTraced ? PenTrace{}
                                               : penTrace(wholePath(outline), stretchShare * size_);
        }
        if (trace_->stretches.empty()) {
            LineEffects effects;
            effects.opacity = outline.cost > mostTraced ? progress.traced : 1;
            return letters_.draw(effects, scale, color);
        }
        const QRect area = deviceRect(letters_.rect({}), scale);
        if (!pen_ || pen_->scale() != scale || pen_->rect() != area) {
            pen_.emplace(scale, penWidth_, area, baselineShift(outline, scale));
            ink_ = {};
        }
        PlacedPicture result{transparentPicture(area.size(), memory_), area.topLeft()};
        if (progress.ink > 0) {
            if (ink_.isNull()) {
                ink_ = letters_.draw({}, scale, color).picture;
            }
            QPainter painter(&result.picture);
            painter.setOpacity(progress.ink);
            painter.drawImage(0, 0, ink_);
        }
        addPen(result.picture, pen_->at(*trace_, trace_->length * progress.traced), color);
        return result;
    }

    void releaseMemory() override {
        pen_.reset();
        ink_ = {};
        memory_ = {};
        letters_.releaseMemory();
    }

private:
    double size_;
    double penWidth_;
    std::optional<PenTrace> trace_;
    Letters letters_;
    std::optional<PenDrawing> pen_;
    QImage ink_; // in the buffer of letters_, at the scale of the pen
    std::vector<QRgb> memory_;
};

} // namespace

double penWidth(double size) {
    return std::max(0.018 * size, 0.7);
}

// Ignores the excess that the fixed-point arithmetic of Qt's layout adds to a whole width.
double wholePoints(double length) {
    return std::ceil(length - 1e-3);
}

PlacedRows placeHandwritten(const TextLayout& layout, const TextFont& font, double maxWidth) {
    const double unit = font.size / shapingSize;
    const TextRow& first = layout.rows.front();
    if (layout.rows.size() > 1 || (maxWidth > 0 && first.width * unit > maxWidth)) {
        return placeRows(layout, unit, maxWidth);
    }
    PlacedRows placed;
    placed.frame.characterCount = layout.characterCount;
    placed.frame.size = {wholePoints(first.width * unit),
                         wholePoints((first.ascent + first.descent) * unit)};
    placed.frame.baseline = placed.frame.size.height() - descentOf(rawFace(font.face)) * unit;
    placed.places.push_back({{0, placed.frame.baseline}, unit});
    return placed;
}

HandwrittenLine handwrittenLine(const QString& text, const TextFont& font, double maxWidth) {
    if (!(font.size > 0)) {
        return {};
    }
    GlyphShapes shapes;
    const RowLayout layout(text, font.face, 0, maxWidth / (font.size / shapingSize),
                           maxWidth > 0 ? LineBreaks::Kept : LineBreaks::Ignored);
    return {outlineOf(layout, placeHandwritten(layout.rows(), font, maxWidth), shapes),
            penWidth(font.size)};
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

PenProgress penProgress(double seconds) {
    const double since = sinceStart(seconds);
    return {.traced = easeInEaseOut(since / traceDuration),
            .ink = std::clamp((since - inkStart) / inkDuration, 0.0, 1.0)};
}

double handwritingDuration() {
    return inkStart + inkDuration;
}

std::unique_ptr<LinePainter> handwritingPainter(LateOutline text, double size) {
    return std::make_unique<HandwritingPainter>(std::move(text), size);
}

} // namespace morrowleaf
