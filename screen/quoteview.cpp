// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/quoteview.h"

#include "base/graphemes.h"
#include "screen/greeting.h"
#include "screen/layout.h"
#include "textanim/fonts.h"
#include "textanim/handwriting.h"
#include "textanim/textoutline.h"

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

// Independent of the locale: a name is the same on every desktop.
QString shownAuthor(const Quote& quote) {
    return quote.author.toUpper();
}

// The nearest whole device pixel, in points.
double snapped(double points, double devicePixelRatio) {
    return std::round(points * devicePixelRatio) / devicePixelRatio;
}

// What is drawn of the first `limit` characters.
QString seenPart(const QString& text, qsizetype limit) {
    constexpr qsizetype unitsPerCharacter = 4; // on average
    return beginningOf(drawnPart(text, limit * unitsPerCharacter), limit);
}

// Whether two lines have the same layout, which does not depend on colour and shadow.
bool sameLayout(const RevealLine::Parts& a, const RevealLine::Parts& b) {
    return a.text == b.text && a.index == b.index && a.style == b.style && a.isStill == b.isStill &&
           a.font == b.font && a.strokeFont == b.strokeFont && a.maxWidth == b.maxWidth;
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
        , screenScale_(screenScale(state.mainScreen ? std::optional(state.mainScreen->height())
                                                    : std::nullopt))
        , scale_(screenScale_ * usableSizeScale(state.settings.sizeScale))
        , width_(state.mainScreen ? std::optional(state.mainScreen->width()) : std::nullopt)
        , inset_(state.sideInset)
        , seen_(visibleCharacterLimit(state.size.height(), wishedSize(),
                                      target(std::min(wishedSize(), measure::leastQuoteSize)))) {}

    qsizetype seen() const { return seen_; }
    // The limit for a single line and for the author: without spaces only scripts
    // with wide characters wrap into rows, and a row holds half as many of those.
    qsizetype seenInOne() const { return seen_ / 2; }
    double scale() const { return scale_; } // s × k
    double largestScale() const { return screenScale_ * K::textScale.highest; }
    double wishedSize() const { return measure::quoteSize * scale_; }
    // The characters in a line of a quotation of that size.
    int target(double size) const { return wrapTarget(width_, inset_, size / measure::quoteSize); }
    TextFont quote(double size) const { return quoteFont(fonts_, fontName_, size); }
    TextFont mark(double size) const {
        return quote(measure::markSize * size / measure::quoteSize);
    }
    TextFont author(double scale) const { return caption(measure::authorSize * scale); }
    TextFont overlay(double scale) const { return caption(measure::captionSize * scale); }
    // The scale of what stands around a quotation of that size: the wished one, but no
    // wish beyond the largest that can be chosen counts if the quotation cannot follow it.
    double scaleAround(double size) const {
        const double most = std::max(largestScale(), size / measure::quoteSize);
        return size < wishedSize() ? std::min(scale_, most) : scale_;
    }

private:
    TextFont caption(double size) const {
        return nsFont(fonts_, size, FontDesign::Monospaced, FontWeight::Medium);
    }

    const FontBook& fonts_;
    QString fontName_;
    double screenScale_;
    double scale_;
    std::optional<double> width_; // of the main screen
    double inset_;
    qsizetype seen_;
};

QuoteView::QuoteView(const QuoteViewState& state, const FontBook& fonts)
    : fonts_(&fonts)
    , state_(state)
    , mark_{markOpacity} {
    compose(0);
}

void QuoteView::update(const QuoteViewState& state, double seconds) {
    state_ = state;
    compose(seconds);
}

void QuoteView::compose(double seconds) {
    const Metrics metrics(state_, *fonts_);
    const QRectF box = contentBox(state_.size, state_.sideInset);
    const double width = columnWidth(box);

    const bool isFull = state_.settings.highContrast;
    greeting_.opacity = isFull ? 1 : captionOpacity;
    today_.opacity = greeting_.opacity;
    author_.opacity = isFull ? 1 : authorOpacity;
    hint_.opacity = isFull ? 1 : hintOpacity;
    cutOffUnseen(metrics);
    fitQuotation(metrics, width);
    composeOverlays(metrics, box);
    composeLines(metrics, width, seconds);
    if (!closing_) {
        closing_ =
            closingEntrances(storedTextAnim(state_.settings.textAnimRaw), fitted_.lines.size());
    }
    layOut(mark_, {u"\u201C"_s, metrics.mark(fitted_.size)});
    layOut(author_,
           {shownAuthor(state_.quote),
            metrics.author(surroundingScale(metrics.scaleAround(fitted_.size), fitted_.size)),
            measure::authorTracking, width});
    layOut(sample_, {u"x"_s, metrics.quote(fitted_.size)});
    placeTexts(metrics, box);
}

// A source may deliver millions of characters, even as a single word.
void QuoteView::cutOffUnseen(const Metrics& metrics) {
    if (seenQuote_.whole != state_.quote || seenQuote_.limit != metrics.seen()) {
        seenQuote_ = {state_.quote,
                      metrics.seen(),
                      {seenPart(state_.quote.text, metrics.seen()),
                       seenPart(state_.quote.author, metrics.seenInOne())}};
    }
    state_.quote = seenQuote_.seen;
}

void QuoteView::fitQuotation(const Metrics& metrics, double width) {
    const QuotationFit::Texts texts{state_.quote.text, metrics.quote(1).face, metrics.seenInOne(),
                                    shownAuthor(state_.quote), metrics.author(1).face};
    if (texts != quotationFit_.texts()) {
        work_.measurements += quotationFit_.measurements();
        quotationFit_ = QuotationFit(texts);
    }
    fitted_ = quotationFit_.fit(metrics.wishedSize(),
                                {.viewHeight = state_.size.height(),
                                 .columnWidth = width,
                                 .largestScale = metrics.largestScale(),
                                 .target = [&](double size) { return metrics.target(size); }});
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
    parts.isStill = isStill();
    parts.font = metrics.quote(fitted_.size);
    parts.strokeFont = parts.font;
    parts.color = state_.palette.ink;
    parts.shadow = {state_.palette.light ? 0.08 : 0.35, measure::shadowRadius,
                    QPointF(0, measure::shadowDrop)};
    parts.maxWidth = width;

    const auto shapes = std::make_shared<GlyphShapes>();
    double bottom = measure::headerTop; // of the lines so far, at least
    std::vector<Line> lines;
    lines.reserve(static_cast<size_t>(fitted_.lines.size()));
    for (qsizetype i = 0; i < fitted_.lines.size() && bottom < state_.size.height(); ++i) {
        parts.text = fitted_.lines[i];
        parts.pieces = fitted_.pieces[static_cast<std::size_t>(i)];
        parts.index = i;
        const QString identity = lineIdentity(raw, i, parts.text);
        Line* old = i < lineCount() ? &lines_[static_cast<size_t>(i)] : nullptr;
        const bool continues = old && old->identity == identity;
        const double appearedAt = continues ? old->appearedAt : seconds;
        if (old && sameLayout(old->line.parts(), parts)) {
            old->line.setColors(parts.color, parts.shadow);
            lines.push_back({identity, appearedAt, std::move(old->line), {}});
        } else {
            lines.push_back({identity, appearedAt, RevealLine(parts, shapes), {}});
            ++work_.layouts;
        }
        bottom += lines.back().line.size().height() +
                  measure::lineSpacing * fitted_.size / measure::quoteSize;
    }
    lines_ = std::move(lines);
}

// The header row and the hint are scaled down when a large text scale leaves too
// little width for them.
void QuoteView::composeOverlays(const Metrics& metrics, const QRectF& box) {
    const TextFont font = metrics.overlay(metrics.scaleAround(fitted_.size));
    layOut(greeting_, {greeting(state_.moment), font});
    layOut(today_, {today(state_.moment, state_.locale), font, measure::dateTracking});
    layOut(hint_, {hintText(state_.sideInset), font, measure::hintTracking});

    const double row = std::max(box.width() - 2 * measure::headerSide, 1.0);
    const double needed = greeting_.shape.size().width() + measure::headerGap +
                          today_.shape.size().width() - today_.shape.lastTracking();
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
    const double left = box.left() + measure::headerSide;
    const double right = box.right() - measure::headerSide;
    const auto drawnWidth = [](const Text& text) {
        return text.rect().width() - text.shape.lastTracking() * text.scale;
    };
    const bool mirrored = state_.direction == Qt::RightToLeft;
    Text& first = mirrored ? today_ : greeting_;
    Text& last = mirrored ? greeting_ : today_;
    onBaseline(first, left, middleOf(first));
    onBaseline(last, right - drawnWidth(last), middleOf(last));
    onBaseline(hint_, box.center().x() - drawnWidth(hint_) / 2,
               state_.size.height() - measure::hintBottom - hint_.rect().height());
}

// The paddings take what author, header and hint leave of the room, if that is less
// than they would like to have.
Column QuoteView::columnFor(double wished, double headerBottom, double hintTop) const {
    ColumnSizes sizes{mark_.shape.size(), {}, author_.shape.size()};
    for (const Line& line : lines_) {
        sizes.lines.append(line.line.size());
    }
    const Leading leading = state_.quote.text.isRightToLeft() ? Leading::Right : Leading::Left;
    const double own = fitted_.size / measure::quoteSize;
    const double room = columnRoom(state_.size.height(), headerBottom, hintTop) -
                        stackColumn(sizes, own, 0, leading).height;
    const double least = measure::leastPaddings * own;
    const double paddings = std::min(std::max(room / measure::columnPaddings, least),
                                     surroundingScale(wished, fitted_.size));
    return stackColumn(sizes, own, paddings, leading);
}

void QuoteView::placeTexts(const Metrics& metrics, const QRectF& box) {
    const double headerBottom =
        measure::headerTop + std::max(greeting_.rect().height(), today_.rect().height());
    const double hintTop = state_.size.height() - measure::hintBottom - hint_.rect().height();
    const Column column = columnFor(metrics.scaleAround(fitted_.size), headerBottom, hintTop);
    place_ = placeColumn(column.height, state_.size.height(), headerBottom, hintTop);

    const double ratio = state_.devicePixelRatio;
    const auto placed = [&](QPointF inColumn, double baseline) {
        const QPointF at(box.center().x() + inColumn.x(), place_.top + inColumn.y());
        return QPointF(snapped(at.x(), ratio), snapped(at.y() + baseline, ratio) - baseline);
    };
    mark_.topLeft = placed(column.mark.topLeft(), mark_.shape.baseline());
    author_.topLeft = placed(column.author.topLeft() + QPointF(author_.shape.lastTracking() / 2, 0),
                             author_.shape.baseline());
    const double baseline = sample_.shape.baseline();
    for (size_t i = 0; i < lines_.size(); ++i) {
        lines_[i].topLeft = placed(column.lines[static_cast<qsizetype>(i)].topLeft(), baseline);
    }
    const QPointF ruleAt = placed(column.rule.topLeft(), 0);
    rule_ = {ruleAt.x(), ruleAt.y(), snapped(column.rule.width(), ratio),
             std::max(1.0, std::floor(column.rule.height() * ratio)) / ratio};
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
    return {line.topLeft, line.line.size()};
}

QuoteView::Work QuoteView::work() const {
    Work work = work_;
    work.measurements += quotationFit_.measurements();
    for (const Line& line : lines_) {
        work.readLetters += line.line.readLetters();
    }
    return work;
}

QString QuoteView::lineText(qsizetype index) const {
    return lines_[static_cast<size_t>(index)].line.parts().text;
}

double QuoteView::lineAppearedAt(qsizetype index) const {
    return lines_[static_cast<size_t>(index)].appearedAt;
}

} // namespace morrowleaf
