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

// A single row, in a place of whole points.
TextOutline outlineOfRow(const TextLayout& layout, const TextFont& font, GlyphShapes& shapes) {
    const TextRow& row = layout.rows.front();
    const double unit = font.size / shapingSize;
    const QSizeF place(wholePoints(row.width * unit),
                       wholePoints((row.ascent + row.descent) * unit));
    const double baseline = place.height() - descentOf(rawFace(font.face)) * unit;
    TextOutline text = outlineRow(layout, {0, baseline}, unit, shapes);
    text.size = place;
    text.baseline = baseline;
    return text;
}

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
            const unsigned room = 255 - qAlpha(pixels[x]);
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
    HandwritingPainter(HandwrittenLine line, double size)
        : trace_(line.text.cost > mostTraced ? PenTrace{}
                                             : penTrace(wholePath(line.text), stretchShare * size))
        , penWidth_(line.penWidth)
        , letters_(std::move(line.text), line.penWidth / 2 + 1) {}

    const TextOutline& text() const override { return letters_.text(); }
    double duration() const override { return handwritingDuration(); }
    bool looksSame(double one, double other) const override {
        return one == other || penProgress(one) == penProgress(other);
    }
    QRectF rect(double seconds) const override {
        const PenProgress progress = penProgress(seconds);
        return progress.traced > 0 || progress.ink > 0 ? letters_.rect({}) : QRectF();
    }

    PlacedPicture draw(double seconds, double scale, const QColor& color) override {
        const PenProgress progress = penProgress(seconds);
        if (trace_.stretches.empty()) {
            LineEffects effects;
            effects.opacity = text().cost > mostTraced ? progress.traced : 1;
            return letters_.draw(effects, scale, color);
        }
        const QRect area = deviceRect(letters_.rect({}), scale);
        if (!pen_ || pen_->scale() != scale || pen_->rect() != area) {
            pen_.emplace(scale, penWidth_, area, baselineShift(text(), scale));
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
        addPen(result.picture, pen_->at(trace_, trace_.length * progress.traced), color);
        return result;
    }

    void releaseMemory() override {
        pen_.reset();
        ink_ = {};
        memory_ = {};
        letters_.releaseMemory();
    }

private:
    PenTrace trace_;
    double penWidth_;
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

HandwrittenLine handwrittenLine(const QString& text, const TextFont& font, double maxWidth) {
    GlyphShapes shapes;
    return handwrittenLine(text, font, maxWidth, shapes);
}

HandwrittenLine handwrittenLine(const QString& text, const TextFont& font, double maxWidth,
                                GlyphShapes& shapes) {
    if (!(font.size > 0)) {
        return {};
    }
    const double unit = font.size / shapingSize;
    const TextLayout layout = layOut(text, font.face, 0, maxWidth / unit,
                                     maxWidth > 0 ? LineBreaks::Kept : LineBreaks::Ignored);
    const bool fits = maxWidth <= 0 || layout.rows.front().width * unit <= maxWidth;
    return {layout.rows.size() == 1 && fits ? outlineOfRow(layout, font, shapes)
                                            : outlineOf(layout, unit, maxWidth, shapes),
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

std::unique_ptr<LinePainter> handwritingPainter(const QString& text, const TextFont& font,
                                                double maxWidth, GlyphShapes& shapes) {
    return std::make_unique<HandwritingPainter>(handwrittenLine(text, font, maxWidth, shapes),
                                                font.size);
}

} // namespace morrowleaf
