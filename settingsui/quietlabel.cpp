// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/quietlabel.h"

#include "settingsui/hostpalette.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace morrowleaf {
namespace {

class QuietLabel : public QLabel {
public:
    QuietLabel(const QString& text, Emphasis emphasis, QWidget* parent)
        : QLabel(text, parent)
        , opacity_(emphasis == Emphasis::Secondary ? 0.72F : 0.62F) {
        setTextFormat(Qt::PlainText);
        fade();
    }

protected:
    void changeEvent(QEvent* event) override {
        if (event->type() == QEvent::PaletteChange && !fading_) {
            fade();
        }
        QLabel::changeEvent(event);
    }
    QColor ink() const { return palette().color(foregroundRole()); }

private:
    void fade() {
        fading_ = true;
        QPalette own;
        const QWidget* host = parentWidget();
        const QPalette around = host ? host->palette() : QPalette();
        QColor color = around.color(QPalette::WindowText);
        color.setAlphaF(hasFullContrast(around) ? 1 : opacity_);
        own.setColor(QPalette::WindowText, color);
        setPalette(own);
        fading_ = false;
    }

    float opacity_;
    bool fading_ = false;
};

// QLabel itself breaks no words and would be as wide as the longest one.
class WrappedLabel : public QuietLabel {
public:
    WrappedLabel(const QString& text, Emphasis emphasis, QWidget* parent)
        : QuietLabel(text, emphasis, parent) {
        setWordWrap(true);
    }

    QSize minimumSizeHint() const override {
        constexpr int letters = 8;
        const QMargins edges = contentsMargins();
        return QSize(letters * fontMetrics().averageCharWidth(), fontMetrics().height())
            .grownBy(edges);
    }
    int heightForWidth(int width) const override {
        const QMargins edges = contentsMargins();
        QTextLayout layout;
        return static_cast<int>(std::ceil(makeRows(layout, width - edges.left() - edges.right()))) +
               edges.top() + edges.bottom();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setPen(ink());
        const QRect inside = contentsRect();
        QTextLayout layout;
        const double height = makeRows(layout, inside.width());
        layout.draw(&painter, inside.topLeft() + QPointF(0, (inside.height() - height) / 2));
    }

private:
    // Cuts the text into rows of `width` points and returns their height.
    double makeRows(QTextLayout& layout, int width) const {
        QString rows = text();
        layout.setText(rows.replace(u'\n', QChar::LineSeparator));
        layout.setFont(font());
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        option.setAlignment(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft));
        layout.setTextOption(option);
        double height = 0;
        layout.beginLayout();
        for (QTextLine row = layout.createLine(); row.isValid(); row = layout.createLine()) {
            row.setLineWidth(width);
            row.setPosition({0, height});
            height += row.height();
        }
        layout.endLayout();
        return height;
    }
};

class NumberLabel : public QuietLabel {
public:
    using QuietLabel::QuietLabel;

    QSize sizeHint() const override {
        const QFontMetricsF metrics(font());
        double width = 0;
        for (const QChar c : text()) {
            width += cell(c, metrics);
        }
        return {static_cast<int>(std::ceil(width)), fontMetrics().height()};
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setPen(ink());
        if (isRightToLeft()) {
            painter.setLayoutDirection(Qt::RightToLeft);
            painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter, text());
            return;
        }
        const QFontMetricsF metrics(font());
        const double baseline = std::round((height() - metrics.height()) / 2 + metrics.ascent());
        double right = width();
        const QString number = text();
        for (auto c = number.crbegin(); c != number.crend(); ++c) {
            const double width = cell(*c, metrics);
            const double indent = (width - metrics.horizontalAdvance(*c)) / 2;
            right -= width;
            painter.drawText(QPointF(right + indent, baseline), *c);
        }
    }

private:
    static double cell(QChar c, const QFontMetricsF& metrics) {
        if (!c.isDigit()) {
            return metrics.horizontalAdvance(c);
        }
        double widest = 0;
        for (char16_t digit = u'0'; digit <= u'9'; ++digit) {
            widest = std::max(widest, metrics.horizontalAdvance(QChar(digit)));
        }
        return widest;
    }
};

} // namespace

QLabel* makeQuietLabel(const QString& text, Emphasis emphasis, QWidget* parent) {
    return new WrappedLabel(text, emphasis, parent);
}

QLabel* makeNumberLabel(Emphasis emphasis, QWidget* parent) {
    return new NumberLabel({}, emphasis, parent);
}

} // namespace morrowleaf
