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
#include <numeric>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double markOpacity = 0.18;
constexpr double captionOpacity = 0.45;
constexpr double authorOpacity = 0.72;
constexpr double hintOpacity = 0.3;

constexpr double unbounded = 1e9; // points

const QString markText = u"\u201C"_s;

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
        , width_(state.mainScreen ? std::optional(state.mainScreen->width()) : std::nullopt)
        , inset_(state.sideInset)
        , seen_(visibleCharacterLimit(state.size.height(), wishedSize(),
                                      target(std::min(wishedSize(), measure::leastQuoteSize)))) {}

    qsizetype seen() const { return seen_; }
    // The limit for a single line and for the author: without spaces only scripts
    // with wide characters wrap into rows, and a row holds half as many of those.
    qsizetype seenInOne() const { return seen_ / 2; }
    double scale() const { return scale_; } // s × k
    double wishedSize() const { return measure::quoteSize * scale_; }
    // The characters in a line of a quotation of that size.
    int target(double size) const { return wrapTarget(width_, inset_, size / measure::quoteSize); }
    TextFont quote(double size) const { return quoteFont(fonts_, fontName_, size); }
    TextFont mark(double size) const {
        return quote(measure::markSize * size / measure::quoteSize);
    }
    TextFont author(double scale) const { return caption(measure::authorSize * scale); }
    TextFont overlay() const { return caption(measure::captionSize * scale_); }

private:
    TextFont caption(double size) const {
        return nsFont(fonts_, size, FontDesign::Monospaced, FontWeight::Medium);
    }

    const FontBook& fonts_;
    QString fontName_;
    double scale_;
    std::optional<double> width_; // of the main screen
    double inset_;
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
    const QRectF box = contentBox(state_.size, state_.sideInset);
    const double width = columnWidth(box);

    composeOverlays(metrics, box);
    cutQuotation(metrics, width);
    composeLines(metrics, width, seconds);
    if (!closing_) {
        closing_ = closingEntrances(storedTextAnim(state_.settings.textAnimRaw), lineCount());
    }
    layOut(mark_, {markText, metrics.mark(sizes_.quote)});
    layOut(author_, {shownAuthor(state_.quote), metrics.author(sizes_.author),
                     measure::authorTracking, width});
    layOut(sample_, {u"x"_s, metrics.quote(sizes_.quote)});
    placeTexts(box);
}

// Cuts off what cannot be seen: a source may deliver millions of characters, even
// as a single word.
void QuoteView::cutQuotation(const Metrics& metrics, double width) {
    const bool isNew = work_.cuts == 0 || cut_.quote != state_.quote || cut_.seen != metrics.seen();
    if (isNew) {
        cut_.quote = state_.quote;
        cut_.seen = metrics.seen();
        cut_.seenQuote = {seenPart(state_.quote.text, metrics.seen()),
                          seenPart(state_.quote.author, metrics.seenInOne())};
    }
    state_.quote = cut_.seenQuote;
    sizes_ = fittingSizes(metrics, width);
    if (isNew || cut_.target != sizes_.target) {
        cut_.target = sizes_.target;
        ++work_.cuts;
    }
    cut_.lines = quotationFit_.lines(sizes_.target, sizes_.quote, width);
}

// What the column would measure in other sizes is judged by a screen whose header and
// hint have the same scale, so that the result does not depend on the wish. What the
// wish makes larger than that is taken from the paddings.
QuoteView::Sizes QuoteView::fittingSizes(const Metrics& metrics, double width) {
    const QFont face = metrics.quote(1).face;
    if (!quotationFit_.isOf(state_.quote.text, face, metrics.seenInOne())) {
        quotationFit_ = QuotationFit(state_.quote.text, face, metrics.seenInOne());
    }
    if (!markFit_.isOf(markText, face)) {
        markFit_ = CaptionFit(markText, face);
    }
    const QString author = shownAuthor(state_.quote);
    const QFont authorFace = metrics.author(1).face;
    if (!authorFit_.isOf(author, authorFace)) {
        authorFit_ = CaptionFit(author, authorFace);
    }
    const bool isWritten = storedTextAnim(state_.settings.textAnimRaw) == TextAnim::Handwrite;
    const auto rounding = [isWritten](double height) {
        return isWritten ? wholePoints(height) : height;
    };
    const auto scaleOf = [](double size) { return size / measure::quoteSize; };
    const auto heightWithoutPaddings = [&](double size, double authorScale) {
        const QList<double> lines =
            quotationFit_.lineHeights(metrics.target(size), size, width, rounding);
        const auto gaps = static_cast<double>(std::max(lines.size() - 1, qsizetype{0}));
        return markFit_.height(measure::markSize * scaleOf(size), 0, unbounded) +
               std::accumulate(lines.begin(), lines.end(), 0.0) +
               gaps * measure::lineSpacing * scaleOf(size) + measure::ruleHeight +
               authorFit_.height(measure::authorSize * authorScale, measure::authorTracking, width);
    };
    const double wished = metrics.scale();
    const auto room = [&](double captionScale, double space) {
        return columnRoom(state_.size.height(), headerBottom(captionScale, wished),
                          hintTop(captionScale, wished), space);
    };
    const auto fits = [&](double size) {
        const double own = scaleOf(size);
        const double height = heightWithoutPaddings(size, own);
        return quotationFit_.wordsFit(size, width) &&
               height + own * measure::columnPaddings <= room(own, measure::leastSpace) &&
               height <= room(wished, measure::leastSpace);
    };

    Sizes sizes;
    sizes.quote = largestFittingSize(metrics.wishedSize(), measure::leastQuoteSize, fits);
    sizes.target = metrics.target(sizes.quote);
    sizes.author = surroundingScale(wished, sizes.quote);
    sizes.paddings = sizes.author;
    if (sizes.quote == metrics.wishedSize()) {
        return sizes;
    }
    const double own = scaleOf(sizes.quote);
    const double leastPaddings = 0.25 * own;
    const double goodPaddings = 0.75 * own; // worth a column that comes close to the hint
    const auto paddingsWithin = [&](double space) {
        return (room(wished, space) - heightWithoutPaddings(sizes.quote, sizes.author)) /
               measure::columnPaddings;
    };
    if (paddingsWithin(measure::leastSpace) < leastPaddings) {
        sizes.author = own;
    }
    const double most = paddingsWithin(measure::leastSpace);
    sizes.paddings =
        most < 0
            ? own
            : std::min(std::max(paddingsWithin(measure::shrunkSpace), std::min(most, goodPaddings)),
                       sizes.paddings);
    return sizes;
}

double QuoteView::headerBottom(double captionScale, double wished) const {
    const auto heightOf = [&](const Text& text) {
        return std::min(text.shape.size().height() * captionScale / wished, text.rect().height());
    };
    return measure::headerTop + std::max(heightOf(greeting_), heightOf(today_));
}

double QuoteView::hintTop(double captionScale, double wished) const {
    const double height =
        std::min(hint_.shape.size().height() * captionScale / wished, hint_.rect().height());
    return state_.size.height() - measure::hintBottom - height;
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
    parts.font = metrics.quote(sizes_.quote);
    parts.strokeFont = parts.font;
    parts.color = state_.palette.ink;
    parts.shadow = {state_.palette.light ? 0.08 : 0.35, measure::shadowRadius,
                    QPointF(0, measure::shadowDrop)};
    parts.maxWidth = width;

    GlyphShapes shapes; // shared by the lines
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
            lines.push_back({identity, appearedAt, RevealLine(parts, shapes), {}});
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
    onBaseline(greeting_, box.left() + measure::headerSide, middleOf(greeting_));
    onBaseline(today_,
               box.right() - measure::headerSide - today_.rect().width() +
                   today_.shape.lastTracking() * today_.scale,
               middleOf(today_));
    onBaseline(hint_,
               box.center().x() -
                   (hint_.rect().width() - hint_.shape.lastTracking() * hint_.scale) / 2,
               state_.size.height() - measure::hintBottom - hint_.rect().height());
}

void QuoteView::placeTexts(const QRectF& box) {
    ColumnSizes sizes{mark_.shape.size(), {}, author_.shape.size()};
    for (const Line& line : lines_) {
        sizes.lines.append(line.line.size());
    }
    const Leading leading = state_.quote.text.isRightToLeft() ? Leading::Right : Leading::Left;
    const Column column =
        stackColumn(sizes, sizes_.quote / measure::quoteSize, sizes_.paddings, leading);
    place_ = placeColumn(column.height, state_.size.height(), headerBottom(1, 1), hintTop(1, 1));

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

QString QuoteView::lineText(qsizetype index) const {
    return lines_[static_cast<size_t>(index)].line.parts().text;
}

double QuoteView::lineAppearedAt(qsizetype index) const {
    return lines_[static_cast<size_t>(index)].appearedAt;
}

} // namespace morrowleaf
