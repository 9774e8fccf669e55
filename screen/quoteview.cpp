// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/quoteview.h"

#include "base/graphemes.h"
#include "screen/greeting.h"
#include "screen/layout.h"
#include "textanim/fonts.h"
#include "textanim/linebalancing.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double markOpacity = 0.18;
constexpr double captionOpacity = 0.45;
constexpr double authorOpacity = 0.72;
constexpr double hintOpacity = 0.3;

// The nearest whole device pixel, in points.
double snapped(double points, double devicePixelRatio) {
    return std::round(points * devicePixelRatio) / devicePixelRatio;
}

// Whether two lines have the same layout, which does not depend on colour and shadow.
bool sameLayout(const RevealLine::Parts& a, const RevealLine::Parts& b) {
    return a.text == b.text && a.index == b.index && a.style == b.style && a.font == b.font &&
           a.strokeFont == b.strokeFont && a.maxWidth == b.maxWidth;
}

} // namespace

QString lineIdentity(const QString& textAnimRaw, qsizetype index, const QString& line) {
    return textAnimRaw + u'-' + QString::number(index) + u'-' +
           QString::number(characterCount(line));
}

// The scale, sizes and fonts that follow from a state.
class QuoteView::Metrics {
public:
    Metrics(const QuoteViewState& state, const FontBook& fonts)
        : fonts_(fonts)
        , fontName_(state.settings.fontName)
        , scale_(screenScale(state.mainScreen ? std::optional(state.mainScreen->height())
                                              : std::nullopt) *
                 usableSizeScale(state.settings.sizeScale))
        , wrap_(
              wrapTarget(state.mainScreen ? std::optional(state.mainScreen->width()) : std::nullopt,
                         state.sideInset, scale_))
        , seen_(visibleCharacterLimit(state.size.height(), quoteSize(), wrap_)) {}

    int wrap() const { return wrap_; } // characters
    qsizetype seen() const { return seen_; }
    // The limit for a single line and for the author: without spaces only scripts
    // with wide characters wrap into rows, and a row holds half as many of those.
    qsizetype seenInOne() const { return seen_ / 2; }
    double scale() const { return scale_; } // s × k
    double quoteSize() const { return measure::quoteSize * scale_; }
    TextFont quote() const { return quoteFont(fonts_, fontName_, quoteSize()); }
    TextFont mark() const { return quoteFont(fonts_, fontName_, measure::markSize * scale_); }
    TextFont author() const { return caption(measure::authorSize); }
    TextFont overlay() const { return caption(measure::captionSize); }

private:
    TextFont caption(double size) const {
        return nsFont(fonts_, size * scale_, FontDesign::Monospaced, FontWeight::Medium);
    }

    const FontBook& fonts_;
    QString fontName_;
    double scale_;
    int wrap_;
    qsizetype seen_;
};

QuoteView::QuoteView(const QuoteViewState& state, const FontBook& fonts)
    : fonts_(&fonts)
    , state_(state)
    , greeting_{captionOpacity}
    , today_{captionOpacity}
    , mark_{markOpacity}
    , author_{authorOpacity}
    , hint_{hintOpacity} {
    compose(0);
}

void QuoteView::update(const QuoteViewState& state, double seconds) {
    state_ = state;
    compose(seconds);
}

void QuoteView::compose(double seconds) {
    const Metrics metrics(state_, *fonts_);
    cutQuotation(metrics);
    const QRectF box = contentBox(state_.size, state_.sideInset);
    const double width = columnWidth(box);

    composeLines(metrics, width, seconds);
    if (!closing_) {
        closing_ = closingEntrances(storedTextAnim(state_.settings.textAnimRaw), lineCount());
    }
    layOut(mark_, {u"\u201C"_s, metrics.mark()});
    // Independent of the locale: a name is the same on every desktop.
    layOut(author_,
           {state_.quote.author.toUpper(), metrics.author(), measure::authorTracking, width});
    layOut(sample_, {u"x"_s, metrics.quote()});
    composeOverlays(metrics, box);
    placeTexts(metrics, box);
}

// Cuts off what cannot be seen: a source may deliver millions of characters, even
// as a single word.
void QuoteView::cutQuotation(const Metrics& metrics) {
    if (work_.cuts == 0 || cut_.quote != state_.quote || cut_.wrap != metrics.wrap() ||
        cut_.seen != metrics.seen()) {
        cut_ = {state_.quote, metrics.wrap(), metrics.seen(), {}, {}};
        cut_.seenQuote = {beginningOf(state_.quote.text, metrics.seen()),
                          beginningOf(state_.quote.author, metrics.seenInOne())};
        cut_.lines = balancedLines(cut_.seenQuote.text, metrics.wrap());
        for (QString& line : cut_.lines) {
            line = beginningOf(line, metrics.seenInOne());
        }
        ++work_.cuts;
    }
    state_.quote = cut_.seenQuote;
}

void QuoteView::layOut(Text& text, const Typesetting& typesetting) {
    if (text.typesetting == typesetting) {
        return;
    }
    text.typesetting = typesetting;
    text.shape =
        ShapedText(typesetting.text, typesetting.font, typesetting.tracking, typesetting.maxWidth);
    text.kept = {};
    ++work_.layouts;
}

void QuoteView::composeLines(const Metrics& metrics, double width, double seconds) {
    const QString& raw = state_.settings.textAnimRaw;
    RevealLine::Parts parts;
    parts.style = storedTextAnim(raw);
    parts.font = metrics.quote();
    parts.strokeFont = parts.font;
    parts.color = state_.palette.ink;
    parts.shadow = {state_.palette.light ? 0.08 : 0.35, measure::shadowRadius,
                    QPointF(0, measure::shadowDrop)};
    parts.maxWidth = width;

    std::vector<Line> lines;
    lines.reserve(static_cast<size_t>(cut_.lines.size()));
    for (qsizetype i = 0; i < cut_.lines.size(); ++i) {
        parts.text = cut_.lines[i];
        parts.index = i;
        const QString identity = lineIdentity(raw, i, parts.text);
        Line* old = i < lineCount() ? &lines_[static_cast<size_t>(i)] : nullptr;
        const bool continues = old && old->identity == identity;
        const double appearedAt = continues ? old->appearedAt : seconds;
        if (old && sameLayout(old->line.parts(), parts)) {
            old->line.setColors(parts.color, parts.shadow);
            lines.push_back({identity, appearedAt, std::move(old->line), {}});
        } else {
            lines.push_back({identity, appearedAt, RevealLine(parts), {}});
            ++work_.layouts;
        }
    }
    lines_ = std::move(lines);
}

// The header row and the hint are scaled down when a large text scale leaves too
// little width for them.
void QuoteView::composeOverlays(const Metrics& metrics, const QRectF& box) {
    const TextFont font = metrics.overlay();
    layOut(greeting_, {greeting(state_.moment), font});
    layOut(today_, {today(state_.moment, state_.locale), font, measure::dateTracking});
    layOut(hint_, {hintText(state_.sideInset), font, measure::hintTracking});

    const double row = std::max(box.width() - 2 * measure::headerSide, 1.0);
    const double needed = greeting_.shape.size().width() + 2 * measure::leastSpace +
                          today_.shape.size().width() - measure::dateTracking;
    const double rowScale = std::min(1.0, row / needed);
    greeting_.scale = rowScale;
    today_.scale = rowScale;
    hint_.scale = std::min(1.0, std::max(box.width(), 1.0) / hint_.shape.size().width());

    const double ratio = state_.devicePixelRatio;
    const auto onBaseline = [&](Text& text, double x, double y) {
        const double drop = text.shape.baseline() * text.scale;
        text.topLeft = {snapped(x, ratio), snapped(y + drop, ratio) - drop};
    };
    const double height = std::max(greeting_.rect().height(), today_.rect().height());
    const auto middleOf = [&](const Text& text) {
        return measure::headerTop + (height - text.rect().height()) / 2;
    };
    onBaseline(greeting_, box.left() + measure::headerSide, middleOf(greeting_));
    // The tracking after the last character does not count when a text is aligned or centred.
    onBaseline(today_,
               box.right() - measure::headerSide - today_.rect().width() +
                   measure::dateTracking * today_.scale,
               middleOf(today_));
    onBaseline(hint_,
               box.center().x() - (hint_.rect().width() - measure::hintTracking * hint_.scale) / 2,
               state_.size.height() - measure::hintBottom - hint_.rect().height());
}

void QuoteView::placeTexts(const Metrics& metrics, const QRectF& box) {
    ColumnSizes sizes{mark_.shape.size(), {}, author_.shape.size()};
    for (const Line& line : lines_) {
        sizes.lines.append(line.line.size());
    }
    const Leading leading = state_.quote.text.isRightToLeft() ? Leading::Right : Leading::Left;
    const Column column = stackColumn(sizes, metrics.scale(), leading);
    const double headerBottom =
        measure::headerTop + std::max(greeting_.rect().height(), today_.rect().height());
    const double hintTop = state_.size.height() - measure::hintBottom - hint_.rect().height();
    place_ = placeColumn(column.height, state_.size.height(), headerBottom, hintTop,
                         metrics.quoteSize());

    const double ratio = state_.devicePixelRatio;
    const auto placed = [&](QPointF inColumn, double baseline) {
        const double drop = baseline * place_.scale;
        const QPointF at(box.center().x() + inColumn.x() * place_.scale,
                         place_.top + inColumn.y() * place_.scale);
        return QPointF(snapped(at.x(), ratio), snapped(at.y() + drop, ratio) - drop);
    };
    mark_.scale = place_.scale;
    mark_.topLeft = placed(column.mark.topLeft(), mark_.shape.baseline());
    author_.scale = place_.scale;
    author_.topLeft = placed(column.author.topLeft() + QPointF(measure::authorTracking / 2, 0),
                             author_.shape.baseline());
    const double baseline = sample_.shape.baseline();
    for (size_t i = 0; i < lines_.size(); ++i) {
        lines_[i].topLeft = placed(column.lines[static_cast<qsizetype>(i)].topLeft(), baseline);
    }
    const QPointF ruleAt = placed(column.rule.topLeft(), 0);
    rule_ = {ruleAt.x(), ruleAt.y(), snapped(column.rule.width() * place_.scale, ratio),
             std::max(1.0, std::floor(column.rule.height() * place_.scale * ratio)) / ratio};
}

QRectF QuoteView::rect(Element element) const {
    switch (element) {
    case Element::Greeting:
        return greeting_.rect();
    case Element::Today:
        return today_.rect();
    case Element::Mark:
        return mark_.rect();
    case Element::Rule:
        return rule_;
    case Element::Author:
        return author_.rect();
    case Element::Hint:
        return hint_.rect();
    }
    return {};
}

QRectF QuoteView::lineRect(qsizetype index) const {
    const Line& line = lines_[static_cast<size_t>(index)];
    return {line.topLeft, line.line.size() * place_.scale};
}

QString QuoteView::lineText(qsizetype index) const {
    return lines_[static_cast<size_t>(index)].line.parts().text;
}

double QuoteView::lineAppearedAt(qsizetype index) const {
    return lines_[static_cast<size_t>(index)].appearedAt;
}

} // namespace morrowleaf
