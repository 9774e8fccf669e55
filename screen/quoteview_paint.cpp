// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// How the quote view looks at an instant, and which parts of it change.
#include "backdrop/backdrop.h"
#include "base/job.h"
#include "screen/quoteview.h"
#include "screen/windowpixels.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace morrowleaf {

namespace {

constexpr double ruleOpacity = 0.35;
constexpr qsizetype lettersAhead = 150; // are read in one frame
constexpr double overflowFade = 72;     // height of the gradient at the bottom, points

QColor faded(QColor color, double opacity) {
    color.setAlphaF(static_cast<float>(std::clamp(opacity, 0.0, 1.0)));
    return color;
}

// Outlines may extend a little beyond the typographic box.
QRectF withOverhang(const QRectF& rect) {
    const double overhang = 2 + rect.height() * 0.25;
    return rect.adjusted(-overhang, -overhang, overhang, overhang);
}

QRectF scaledAboutCentre(const QRectF& rect, double scale) {
    QRectF scaled(QPointF(), rect.size() * scale);
    scaled.moveCenter(rect.center());
    return scaled;
}

// Calls `draw`, which touches `rect` (points), once for each part of that in `pixels`.
template <typename Draw>
void drawInside(const QRegion& pixels, QPainter& painter, double devicePixelRatio,
                const QRectF& rect, const Draw& draw) {
    if (rect.isEmpty()) {
        return;
    }
    const QRect touched = devicePixels(rect, devicePixelRatio).adjusted(-1, -1, 1, 1);
    const QRegion parts = pixels & touched;
    for (const QRect& part : parts) {
        painter.save();
        if (part != touched) {
            painter.setClipRect(QRectF(QPointF(part.topLeft()) / devicePixelRatio,
                                       QSizeF(part.size()) / devicePixelRatio));
        }
        draw();
        painter.restore();
    }
}

} // namespace

void QuoteView::Text::paint(QPainter& painter, QColor color, double progress) const {
    painter.save();
    painter.translate(topLeft);
    painter.scale(scale, scale);
    kept.paint(painter, shape, faded(color, opacity * progress));
    painter.restore();
}

double QuoteView::markOpacityAt(double seconds) const {
    return isStill() ? stillEntrance.progress(seconds) : mark::opacity(seconds);
}

double QuoteView::markScaleAt(double seconds) const {
    return isStill() ? 1 : mark::scale(seconds);
}

QRectF QuoteView::markRectAt(double seconds) const {
    return withOverhang(scaledAboutCentre(mark_.rect(), markScaleAt(seconds)));
}

QRectF QuoteView::paintedLineRect(const Line& line, double seconds) const {
    const QRectF own = line.line.paintedRect(seconds - line.appearedAt);
    if (own.isEmpty()) {
        return {};
    }
    return own.translated(line.topLeft);
}

// What the visible part of the column touches.
QRectF QuoteView::columnRectAt(double seconds) const {
    QRectF touched;
    if (markOpacityAt(seconds) > 0) {
        touched |= markRectAt(seconds);
    }
    for (const Line& line : lines_) {
        touched |= paintedLineRect(line, seconds);
    }
    if (shown(closing_->rule).progress(seconds) > 0) {
        touched |= rule_;
    }
    if (shown(closing_->author).progress(seconds) > 0) {
        touched |= withOverhang(author_.rect());
    }
    return touched;
}

void QuoteView::paint(QPainter& painter, double seconds, const QRegion& pixels) const {
    const auto paintText = [&](const Text& text, double progress) {
        if (progress > 0) {
            drawInside(pixels, painter, state_.devicePixelRatio, withOverhang(text.rect()),
                       [&] { text.paint(painter, state_.palette.ink, progress); });
        }
    };
    if (place_.overflows) {
        paintOverflowing(painter, seconds, pixels);
    } else {
        paintColumn(painter, seconds, pixels);
    }
    paintText(greeting_, shown(headerEntrance).progress(seconds));
    paintText(today_, shown(headerEntrance).progress(seconds));
    paintText(hint_, shown(hintEntrance).progress(seconds));
    if (seconds > 0) { // the first frame has enough to do
        readAhead();
    }
}

// Reading all letters of a long line in the frame in which it appears would take too long.
void QuoteView::readAhead() const {
    qsizetype letters = 0;
    for (const Line& line : lines_) {
        letters += line.line.readAhead(lettersAhead - letters);
    }
}

void QuoteView::paintColumn(QPainter& painter, double seconds, const QRegion& pixels) const {
    const auto inside = [&](const QRectF& rect, const auto& draw) {
        drawInside(pixels, painter, state_.devicePixelRatio, rect, draw);
    };
    if (markOpacityAt(seconds) > 0) {
        inside(markRectAt(seconds), [&] {
            const double scale = markScaleAt(seconds);
            const QPointF centre = mark_.rect().center();
            painter.translate(centre);
            painter.scale(scale, scale);
            painter.translate(-centre);
            mark_.paint(painter, state_.palette.ink, markOpacityAt(seconds));
        });
    }
    paintLines(painter, seconds, pixels);
    const double rule = shown(closing_->rule).progress(seconds);
    const double width = rule_.width() * (isStill() ? 1 : rule);
    if (rule > 0) {
        inside(rule_, [&] {
            painter.setRenderHint(QPainter::Antialiasing);
            painter.fillRect(
                QRectF(rule_.center().x() - width / 2, rule_.y(), width, rule_.height()),
                faded(state_.palette.ink, ruleOpacity * (isStill() ? rule : 1)));
        });
    }
    const double author = shown(closing_->author).progress(seconds);
    if (author > 0) {
        inside(withOverhang(author_.rect()),
               [&] { author_.paint(painter, state_.palette.ink, author); });
    }
}

void QuoteView::paintLines(QPainter& painter, double seconds, const QRegion& pixels) const {
    const auto onLine = [&](const Line& line, const auto& what) {
        painter.save();
        painter.translate(line.topLeft);
        what(seconds - line.appearedAt);
        painter.restore();
    };
    // Moving lines are prepared in parallel: every line, whichever part is repainted.
    struct Moving {
        const RevealLine* line;
        QTransform device;
        double since;
    };
    std::vector<Moving> moving;
    for (const Line& line : lines_) {
        onLine(line, [&](double since) {
            if (!line.line.isPrepared(painter.deviceTransform(), since)) {
                moving.push_back({&line.line, painter.deviceTransform(), since});
            }
        });
    }
    if (moving.size() > 1) {
        inParallel(static_cast<int>(moving.size()), [&moving](int i) {
            const Moving& one = moving[static_cast<std::size_t>(i)];
            one.line->prepare(one.device, one.since);
        });
    }
    for (const Line& line : lines_) {
        drawInside(pixels, painter, state_.devicePixelRatio, paintedLineRect(line, seconds), [&] {
            onLine(line, [&](double since) { line.line.paint(painter, {}, since); });
        });
    }
}

// Draws the column into a picture of its own first, so that all of it fades out at the bottom.
void QuoteView::paintOverflowing(QPainter& painter, double seconds, const QRegion& pixels) const {
    const double ratio = state_.devicePixelRatio;
    const QRect bounds = pixels.boundingRect();
    const QRectF clip(QPointF(bounds.topLeft()) / ratio, QSizeF(bounds.size()) / ratio);
    const QRect area = clip.intersected(QRectF(0, 0, state_.size.width(), place_.bottom))
                           .intersected(columnRectAt(seconds))
                           .toAlignedRect();
    if (area.isEmpty()) {
        return;
    }
    QImage aside((QSizeF(area.size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    aside.setDevicePixelRatio(ratio);
    aside.fill(Qt::transparent);
    QPainter column(&aside);
    column.translate(-area.topLeft());
    paintColumn(column, seconds, devicePixels(area, ratio).adjusted(-1, -1, 1, 1));
    QLinearGradient fade(0, place_.bottom - overflowFade, 0, place_.bottom);
    fade.setColorAt(0, Qt::black);
    fade.setColorAt(1, Qt::transparent);
    column.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    column.fillRect(area, fade);
    column.end();
    drawInside(pixels, painter, ratio, area, [&] { painter.drawImage(area.topLeft(), aside); });
}

QRegion QuoteView::changedBetween(double from, double to) const {
    QRegion changed;
    const auto add = [&](const QRectF& rect) {
        if (!rect.isEmpty()) {
            changed += rect.toAlignedRect().adjusted(-1, -1, 1, 1);
        }
    };
    const auto addFor = [&](const Entrance& entrance, const QRectF& rect) {
        if (shown(entrance).progress(from) != shown(entrance).progress(to)) {
            add(rect);
        }
    };
    addFor(headerEntrance, withOverhang(greeting_.rect()));
    addFor(headerEntrance, withOverhang(today_.rect()));
    addFor(hintEntrance, withOverhang(hint_.rect()));
    addFor(closing_->rule, rule_);
    addFor(closing_->author, withOverhang(author_.rect()));
    if (markScaleAt(from) != markScaleAt(to) || markOpacityAt(from) != markOpacityAt(to)) {
        add(markRectAt(from));
        add(markRectAt(to));
    }
    for (const Line& line : lines_) {
        if (line.line.changesBetween(from - line.appearedAt, to - line.appearedAt)) {
            add(paintedLineRect(line, from));
            add(paintedLineRect(line, to));
        }
    }
    return changed;
}

std::optional<double> QuoteView::nextMotion(double seconds) const {
    std::optional<double> next;
    const auto consider = [&](double start, double end) {
        if (seconds < end) {
            const double at = std::max(start, seconds);
            next = next ? std::min(*next, at) : at;
        }
    };
    for (const Entrance& entrance :
         {headerEntrance, hintEntrance, closing_->rule, closing_->author}) {
        consider(shown(entrance).delay, shown(entrance).end());
    }
    if (!isStill()) {
        consider(mark::delay, mark::end());
    }
    for (const Line& line : lines_) {
        consider(line.appearedAt + line.line.delay(), line.appearedAt + line.line.settledAfter());
    }
    return next;
}

QImage renderFrame(BackdropPainter& painter, const BackdropState& backdrop, const QuoteView& view,
                   double seconds, double since2001) {
    const QuoteViewState& state = view.state();
    QImage frame((state.size * state.devicePixelRatio).toSize(),
                 QImage::Format_ARGB32_Premultiplied);
    if (frame.isNull()) {
        return frame;
    }
    frame.setDevicePixelRatio(state.devicePixelRatio);
    painter.paint(frame, frame.rect(), backdrop, since2001);
    QPainter text(&frame);
    view.paint(text, seconds, frame.rect());
    return frame;
}

} // namespace morrowleaf
