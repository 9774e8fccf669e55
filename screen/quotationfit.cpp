// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/quotationfit.h"

#include "base/graphemes.h"
#include "screen/layout.h"
#include "textanim/linebalancing.h"

#include <algorithm>
#include <cmath>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leastTarget = 16;
constexpr double step = 0.5; // points
constexpr int halvings = 40; // of a step

// The sum of words and gaps is off by less than this share of a line's width.
constexpr double estimateError = 0.01;

double inUnits(double length, double size) {
    return length * shapingSize / size;
}

} // namespace

double largestFittingSize(double wished, double least, const std::function<bool(double)>& fits) {
    if (wished <= least || fits(wished)) {
        return wished;
    }
    double size = std::ceil(wished / step) * step - step;
    while (size > least && !fits(size)) {
        size -= step;
    }
    if (size <= least) {
        return least;
    }
    double above = size + step;
    double fitting = size;
    for (int i = 0; i < halvings; ++i) {
        const double middle = (fitting + above) / 2;
        (fits(middle) ? fitting : above) = middle;
    }
    return fitting < wished ? fitting : size;
}

QuotationFit::QuotationFit(const QString& text, const QFont& face, qsizetype longest)
    : text_(text)
    , face_(face)
    , longest_(longest)
    , characters_(characterCount(text)) {
    for (const QString& word : text.split(u' ', Qt::SkipEmptyParts)) {
        for (const RowPiece& piece : measured(beginningOf(word, longest)).pieces) {
            widestPiece_ = std::max(widestPiece_, piece.width);
        }
    }
}

bool QuotationFit::isOf(const QString& text, const QFont& face, qsizetype longest) const {
    return text == text_ && face == face_ && longest == longest_;
}

const MeasuredText& QuotationFit::measured(const QString& text) {
    auto known = measured_.find(text);
    if (known == measured_.end()) {
        known = measured_.insert(text, measureText(text, face_));
    }
    return *known;
}

// A space is kerned with the letters beside it.
double QuotationFit::gapBetween(const QString& word, const QString& next) {
    constexpr char16_t afterAlphabets = 0x2000;
    const QChar before = word.back() < afterAlphabets ? word.back() : QChar(u'n');
    const QChar after = next.front() < afterAlphabets ? next.front() : QChar(u'n');
    const double both = measured(before + QString(u' ') + after).width;
    return both - measured(before).width - measured(after).width;
}

QuotationFit::Line QuotationFit::lineOf(const QString& text) {
    const QStringList words = text.split(u' ');
    Line line{text, words.size() == 1};
    for (qsizetype i = 0; i < words.size(); ++i) {
        const MeasuredText& own = measured(words[i]);
        line.width += own.width;
        line.ascent = std::max(line.ascent, own.ascent);
        line.descent = std::max(line.descent, own.descent);
        const auto breaks = std::ranges::count_if(own.pieces, &RowPiece::endsRow);
        line.isPlain = line.isPlain && breaks < 2;
        if (i > 0) {
            line.width += gapBetween(words[i - 1], words[i]);
        }
    }
    return line;
}

const QuotationFit::Cut& QuotationFit::cut(int target) {
    // The target counts only by the number of lines that it asks for.
    const int aim = static_cast<int>((characters_ + target - 1) / target);
    auto known = cuts_.find(aim);
    if (known == cuts_.end()) {
        Cut lines;
        for (const QString& text : balancedLines(text_, target)) {
            lines.push_back(lineOf(beginningOf(text, longest_)));
        }
        known = cuts_.emplace(aim, std::move(lines)).first;
    }
    return known->second;
}

bool QuotationFit::isWider(const Line& line, double column) {
    const double doubt = line.isWord ? 0 : estimateError;
    if (!line.isPlain || std::abs(line.width - column) < doubt * column) {
        return measured(line.text).width > column;
    }
    return line.width > column;
}

const QuotationFit::Cut& QuotationFit::fittingCut(int target, double column) {
    const auto fits = [&](const Line& line) { return line.isWord || !isWider(line, column); };
    while (target > leastTarget && !std::ranges::all_of(cut(target), fits)) {
        --target;
    }
    return cut(target);
}

QStringList QuotationFit::lines(int target, double size, double width) {
    QStringList texts;
    for (const Line& line : fittingCut(target, inUnits(width, size))) {
        texts.append(line.text);
    }
    return texts;
}

QList<double> QuotationFit::lineHeights(int target, double size, double width,
                                        const std::function<double(double)>& rounding) {
    const double column = inUnits(width, size);
    QList<double> heights;
    for (const Line& line : fittingCut(target, column)) {
        const std::size_t rows = line.isPlain && !isWider(line, column)
                                     ? 1
                                     : rowCount(measured(line.text).pieces, column);
        const double row = (line.ascent + line.descent) * size / shapingSize;
        heights.append(rows <= 1 ? rounding(row) : static_cast<double>(rows) * row);
    }
    return heights;
}

bool QuotationFit::wordsFit(double size, double width) const {
    return widestPiece_ <= inUnits(width, size);
}

CaptionFit::CaptionFit(const QString& text, const QFont& face)
    : text_(text)
    , face_(face)
    , plain_(measureText(text, face))
    , tracked_(measureText(text, face, 1).pieces) {}

double CaptionFit::height(double size, double tracking, double width) const {
    const double space = inUnits(tracking, size);
    std::vector<RowPiece> pieces = plain_.pieces;
    for (std::size_t i = 0; i < pieces.size() && i < tracked_.size(); ++i) {
        pieces[i].width += (tracked_[i].width - pieces[i].width) * space;
        pieces[i].advance += (tracked_[i].advance - pieces[i].advance) * space;
    }
    const std::size_t rows = std::max<std::size_t>(rowCount(pieces, inUnits(width, size)), 1);
    return (plain_.ascent + plain_.descent) * size / shapingSize * static_cast<double>(rows);
}

} // namespace morrowleaf
