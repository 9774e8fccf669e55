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
    std::optional<QSizeF> mainScreen; // points; nothing without a screen
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
    // Another state from `seconds` on. Lines of a new identity start over;
    // nothing else is replayed.
    void update(const QuoteViewState& state, double seconds);

    // As handed in, but for what of the quotation lies far beyond the bottom.
    const QuoteViewState& state() const { return state_; }

    // Draws what lies in `clip` (points); the painter is in points.
    void paint(QPainter& painter, double seconds, const QRectF& clip) const;

    // What of the view differs between two instants, points.
    QRegion changedBetween(double from, double to) const;
    // The first instant, not before `seconds`, from which on something moves:
    // `seconds` itself while it does, nothing when all has come to rest.
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
    struct Text {
        ShapedText shape;
        QPointF topLeft;
        double scale = 1;
        double opacity = 1;
        mutable KeptText kept{};
        QRectF rect() const { return {topLeft, shape.size() * scale}; }
        void paint(QPainter& painter, QColor color, double progress) const;
    };
    struct Line {
        QString identity;
        double appearedAt = 0;
        RevealLine line;
        QPointF topLeft;
    };
    class Setting;

    void compose(double seconds);
    void dropUnseen(const Setting& setting);
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
    Text greeting_;
    Text today_;
    Text mark_;
    Text author_;
    Text hint_;
    QRectF rule_;
    std::vector<Line> lines_;
};

// One frame of the quote screen without a window, at the view's size and device
// pixel ratio; a null image for an empty view. `seconds` since the view
// appeared, `since2001` as for BackdropPainter::paint().
QImage renderFrame(BackdropPainter& painter, const BackdropState& backdrop, const QuoteView& view,
                   double seconds, double since2001);

} // namespace morrowleaf
