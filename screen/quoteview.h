// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "quotes/quote.h"
#include "screen/entrances.h"
#include "screen/layout.h"
#include "screen/quotationfit.h"
#include "screen/viewsettings.h"
#include "textanim/revealline.h"
#include "textanim/shapedtext.h"

#include <QGuiApplication>
#include <QImage>
#include <QLocale>
#include <QRegion>

#include <optional>
#include <vector>

class QPainter;

namespace morrowleaf {

class BackdropPainter;
class FontBook;

// Everything that the content of the quote screen depends on, except the time.
struct QuoteViewState {
    Quote quote;
    ViewSettings settings;
    Palette palette;
    std::optional<QSizeF> mainScreen; // points; std::nullopt without a screen
    QSizeF size;                      // of the view, points
    double devicePixelRatio = 1;
    double sideInset = 0; // width kept free at the right edge, points
    Moment moment;        // for greeting and date
    QLocale locale;
    // Of the header; the lines have that of the quotation.
    Qt::LayoutDirection direction = QGuiApplication::layoutDirection();
};

// Identifies a line: when its identity changes, its entrance restarts.
QString lineIdentity(const QString& textAnimRaw, qsizetype index, const QString& line);

// Everything over the backdrop: greeting, date, mark, lines, rule, author and
// hint, with their entrances. The picture at an instant depends only on the
// states passed in and the instants at which they were; times are seconds since
// the view appeared.
class QuoteView {
public:
    // Creates the view with its state at 0 seconds. The fonts must outlive the view.
    QuoteView(const QuoteViewState& state, const FontBook& fonts);
    // Changes the state at `seconds`. The entrances of lines with a new identity
    // restart, and no others. Only what depends on the difference is laid out again.
    void update(const QuoteViewState& state, double seconds);

    // The state last passed in, with the quotation cut off far below the bottom edge.
    const QuoteViewState& state() const { return state_; }

    // How often a text has been measured to find its size and lines, how often a text
    // or a line has been laid out, and of how many letters of the lines the outlines have
    // been read: some in each frame after the first, and all others when a line appears.
    struct Work {
        int measurements = 0;
        int layouts = 0;
        qsizetype readLetters = 0;
    };
    Work work() const;

    // Draws the elements into `pixels`, device pixels of the view; the painter is in points.
    void paint(QPainter& painter, double seconds, const QRegion& pixels) const;

    // The part of the view that differs between two instants, in points.
    QRegion changedBetween(double from, double to) const;
    // The first instant at or after `seconds` at which something moves: `seconds`
    // itself during a movement, std::nullopt if everything is at rest.
    std::optional<double> nextMotion(double seconds) const;

    // The rectangles of the elements at rest, in points.
    enum class Element { Greeting, Today, Mark, Rule, Author, Hint };
    QRectF rect(Element element) const;
    // The lines that begin above the bottom edge of the view.
    qsizetype lineCount() const { return static_cast<qsizetype>(lines_.size()); }
    QRectF lineRect(qsizetype index) const;
    QString lineText(qsizetype index) const;
    double lineAppearedAt(qsizetype index) const;
    const ClosingEntrances& closing() const { return *closing_; }
    // The size of the quotation in points: the wished one, or the largest with which
    // the column fits between header and hint.
    double quoteSize() const { return fitted_.size; }

private:
    // The input of a text's layout.
    struct Typesetting {
        QString text;
        TextFont font;
        double tracking = 0;
        double maxWidth = 0;

        bool operator==(const Typesetting&) const = default;
    };
    struct Text {
        double opacity = 1;
        Typesetting typesetting{};
        ShapedText shape{};
        QPointF topLeft{};
        double scale = 1;
        mutable KeptText kept{};

        QRectF rect() const { return {topLeft, shape.size() * scale}; }
        void paint(QPainter& painter, QColor color, double progress) const;
    };
    // What can be seen of a quotation.
    struct SeenQuote {
        Quote whole;
        qsizetype limit = 0; // characters
        Quote seen;
    };
    struct Line {
        QString identity;
        double appearedAt = 0;
        RevealLine line;
        QPointF topLeft;
    };
    class Metrics;

    bool isStill() const { return state_.settings.reducedMotion; }
    // An entrance of this view, or the one that replaces it.
    Entrance shown(const Entrance& entrance) const { return isStill() ? stillEntrance : entrance; }
    double markOpacityAt(double seconds) const;
    double markScaleAt(double seconds) const;

    void compose(double seconds);
    void cutOffUnseen(const Metrics& metrics);
    void fitQuotation(const Metrics& metrics, double width);
    void layOut(Text& text, const Typesetting& typesetting);
    void composeLines(const Metrics& metrics, double width, double seconds);
    void composeOverlays(const Metrics& metrics, const QRectF& box);
    Column columnFor(double wished, double headerBottom, double hintTop) const;
    void placeTexts(const Metrics& metrics, const QRectF& box);
    void paintColumn(QPainter& painter, double seconds, const QRegion& pixels) const;
    void paintLines(QPainter& painter, double seconds, const QRegion& pixels) const;
    void readAhead() const;
    void paintOverflowing(QPainter& painter, double seconds, const QRegion& pixels) const;
    QRectF markRectAt(double seconds) const;
    QRectF columnRectAt(double seconds) const;
    QRectF paintedLineRect(const Line& line, double seconds) const;

    const FontBook* fonts_;
    QuoteViewState state_;
    std::optional<ClosingEntrances> closing_;
    ColumnPlace place_;
    Work work_; // without that of the fit
    SeenQuote seenQuote_;
    QuotationFit quotationFit_;
    QuotationFit::Result fitted_;
    Text greeting_;
    Text today_;
    Text mark_;
    Text author_;
    Text hint_;
    Text sample_; // in the quotation's font, for its baseline
    QRectF rule_;
    std::vector<Line> lines_;
};

// Draws one frame of the quote screen without a window, at the view's size and
// device pixel ratio; a null image for an empty view. `seconds` counts since the
// view appeared; `since2001` is as for BackdropPainter::paint().
QImage renderFrame(BackdropPainter& painter, const BackdropState& backdrop, const QuoteView& view,
                   double seconds, double since2001);

} // namespace morrowleaf
