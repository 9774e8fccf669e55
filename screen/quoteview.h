// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "quotes/quote.h"
#include "screen/entrances.h"
#include "screen/layout.h"
#include "screen/viewsettings.h"
#include "textanim/revealline.h"
#include "textanim/shapedtext.h"

#include <QImage>
#include <QLocale>
#include <QRegion>

#include <optional>
#include <vector>

class QPainter;

namespace morrowleaf {

class BackdropPainter;
class FontBook;

// All that the content of the quote screen depends on, but for the time.
struct QuoteViewState {
    Quote quote;
    ViewSettings settings;
    Palette palette;
    std::optional<QSizeF> mainScreen; // points; null without a screen
    QSizeF size;                      // of the view, points
    double devicePixelRatio = 1;
    double sideInset = 0; // kept free at the right edge, points
    Moment moment;        // for greeting and date
    QLocale locale;
};

// What makes a line another one: a change of it restarts the line's entrance.
QString lineIdentity(const QString& textAnimRaw, qsizetype index, const QString& line);

// Everything over the backdrop: greeting, date, mark, lines, rule, author and
// hint, each on its way in. The picture at an instant is a pure function of
// the states handed in and when; times are seconds since the view appeared.
class QuoteView {
public:
    // The view appears with this state at 0.
    QuoteView(const QuoteViewState& state, const FontBook& fonts);
    // Takes another state from `seconds` on. Lines of a new identity start over;
    // nothing else is replayed. Only what depends on the difference is laid out
    // anew.
    void update(const QuoteViewState& state, double seconds);

    // As handed in, except that the part of the quotation far beyond the bottom
    // is cut off.
    const QuoteViewState& state() const { return state_; }

    // How much work the states have made so far: the times that the quotation
    // was cut into lines, and that a text or a line was laid out.
    struct Work {
        int cuts = 0;
        int layouts = 0;
    };
    Work work() const { return work_; }

    // Draws what lies in `clip` (points); the painter is in points.
    void paint(QPainter& painter, double seconds, const QRectF& clip) const;

    // The part of the view that differs between two instants, points.
    QRegion changedBetween(double from, double to) const;
    // The first instant, not before `seconds`, from which on something moves:
    // `seconds` itself while it does, null when everything is at rest.
    std::optional<double> nextMotion(double seconds) const;

    // The places of the elements at rest, points.
    enum class Element { Greeting, Today, Mark, Rule, Author, Hint };
    QRectF rect(Element element) const;
    qsizetype lineCount() const { return static_cast<qsizetype>(lines_.size()); }
    QRectF lineRect(qsizetype index) const;
    QString lineText(qsizetype index) const;
    double lineAppearedAt(qsizetype index) const;
    const ClosingEntrances& closing() const { return *closing_; }
    double columnScale() const { return place_.scale; }

private:
    // What a text is laid out from.
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
    // The quotation cut into lines, and what that was made from.
    struct Cut {
        Quote quote; // as handed in
        int wrap = 0;
        qsizetype seen = 0;
        Quote seenQuote;
        QStringList lines;
    };
    struct Line {
        QString identity;
        double appearedAt = 0;
        RevealLine line;
        QPointF topLeft;
    };
    class Setting;

    void compose(double seconds);
    void cutQuotation(const Setting& setting);
    void layOut(Text& text, const Typesetting& typesetting);
    void composeLines(const Setting& setting, double width, double seconds);
    void composeOverlays(const Setting& setting, const QRectF& box);
    void placeTexts(const Setting& setting, const QRectF& box);
    void paintColumn(QPainter& painter, double seconds, const QRectF& clip) const;
    void paintLines(QPainter& painter, double seconds, const QRectF& clip) const;
    void paintOverflowing(QPainter& painter, double seconds, const QRectF& clip) const;
    QRectF markRectAt(double seconds) const;
    QRectF paintedLineRect(const Line& line, double seconds) const;

    const FontBook* fonts_;
    QuoteViewState state_;
    std::optional<ClosingEntrances> closing_;
    ColumnPlace place_;
    Work work_;
    Cut cut_;
    Text greeting_;
    Text today_;
    Text mark_;
    Text author_;
    Text hint_;
    Text sample_; // in the quotation's font, for its baseline
    QRectF rule_;
    std::vector<Line> lines_;
};

// One frame of the quote screen without a window, at the view's size and device
// pixel ratio; a null image for an empty view. `seconds` since the view
// appeared, `since2001` as for BackdropPainter::paint().
QImage renderFrame(BackdropPainter& painter, const BackdropState& backdrop, const QuoteView& view,
                   double seconds, double since2001);

} // namespace morrowleaf
