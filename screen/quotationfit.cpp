// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/quotationfit.h"

#include "screen/layout.h"
#include "textanim/handwriting.h"

#include <QHash>

#include <algorithm>
#include <limits>

namespace morrowleaf {

namespace {

constexpr double mostSize = 2000; // more than can be wished
constexpr double unbounded = std::numeric_limits<double>::infinity();

double rowHeight(const QFont& face) {
    const QRawFont raw = rawFace(face);
    return ascentOf(raw) + descentOf(raw);
}

double inPoints(double units, double size) {
    return units * size / shapingSize;
}

double inUnits(double points, double size) {
    return points / (size / shapingSize);
}

} // namespace

QuotationFit::QuotationFit(const Texts& texts)
    : texts_(texts)
    , balance_(texts.quotation)
    , author_(measureTexts({texts.author}, texts.captionFace))
    , trackedAuthor_(measureTexts({texts.author}, texts.captionFace, 1))
    , markRow_(rowHeight(texts.face))
    , captionRow_(rowHeight(texts.captionFace)) {
    QStringList words = balance_.words();
    for (QString& word : words) {
        word = beginningOf(word, texts.longest);
    }
    measureWords(words);
    measurements_ = 3;
    for (int target = measure::mostTarget; target >= measure::leastTarget; --target) {
        std::vector<qsizetype> lineEnds = balance_.lineEnds(target);
        if (cuts_.empty() || cuts_.back().lineEnds != lineEnds) {
            const std::size_t lines = lineEnds.size();
            cuts_.push_back(
                {.lineEnds = std::move(lineEnds), .measured = std::vector<bool>(lines)});
        }
        cuts_.back().target = target;
    }
}

// Measures equal words once.
void QuotationFit::measureWords(const QStringList& words) {
    QHash<QString, std::size_t> places;
    QStringList distinct;
    for (const QString& word : words) {
        if (!places.contains(word)) {
            places.insert(word, static_cast<std::size_t>(distinct.size()));
            distinct.append(word);
        }
    }
    const MeasuredTexts measured = measureTexts(distinct, texts_.face);
    words_.rowHeight = measured.rowHeight;
    for (const QString& word : words) {
        words_.pieces.push_back(measured.pieces[places.value(word)]);
        double width = 0;
        for (const RowPiece& piece : words_.pieces.back()) {
            width += piece.advance;
        }
        wordWidths_.push_back(width);
    }
}

QuotationFit::Result QuotationFit::fit(double wished, const Screen& screen) {
    Result result{wished, {}, {}};
    const auto fitsAsWished = [&](Cut& cut) { return fits(cut, wished, screen); };
    if (std::ranges::none_of(cuts_, fitsAsWished)) {
        double limit = measure::leastQuoteSize;
        for (Cut& cut : cuts_) {
            if (fits(cut, limit, screen)) {
                limit = largestSize(cut, screen);
            }
        }
        result.size = std::min(wished, limit);
    }
    qsizetype begin = 0;
    for (const qsizetype end : cutFor(result.size, screen).lineEnds) {
        result.lines.append(beginningOf(balance_.line(begin, end), texts_.longest));
        result.pieces.push_back(end - begin == 1 ? words_.pieces[static_cast<std::size_t>(begin)]
                                                 : std::vector<RowPiece>());
        begin = end;
    }
    return result;
}

// The cut for the largest target of that size with which the column fits, or, if it
// never does, with which no line is too wide.
const QuotationFit::Cut& QuotationFit::cutFor(double size, const Screen& screen) {
    const auto fitting =
        std::ranges::find_if(cuts_, [&](Cut& cut) { return fits(cut, size, screen); });
    if (fitting != cuts_.end()) {
        return *fitting;
    }
    const auto narrow = std::ranges::find_if(cuts_, [&](Cut& cut) {
        return cut.target <= screen.target(size) && !isWider(cut, size, screen.columnWidth);
    });
    return narrow != cuts_.end() ? *narrow : cuts_.back();
}

// A cut that fits in one size fits in all smaller ones.
double QuotationFit::largestSize(Cut& cut, const Screen& screen) {
    double fitting = measure::leastQuoteSize;
    double above = mostSize;
    for (double middle = (fitting + above) / 2; middle > fitting && middle < above;
         middle = (fitting + above) / 2) {
        (fits(cut, middle, screen) ? fitting : above) = middle;
    }
    return fitting;
}

// The column must fit with the author and the spaces of a wish for that size and, with
// narrower spaces, of the largest wish. Smaller targets than that of the size count too.
bool QuotationFit::fits(Cut& cut, double size, const Screen& screen) {
    if (cut.target > screen.target(size)) {
        return false;
    }
    const double own = size / measure::quoteSize;
    const double texts = inPoints(markRow_, measure::markSize * own) +
                         linesHeight(cut, size, screen.columnWidth) + measure::ruleHeight;
    const auto hasRoom = [&](double scale, double paddings) {
        const double caption = inPoints(captionRow_, measure::captionSize * scale);
        const double author = authorHeight(surroundingScale(scale, size), screen.columnWidth);
        return texts + author + measure::columnPaddings * paddings <=
               columnRoom(screen.viewHeight, measure::headerTop + caption,
                          screen.viewHeight - measure::hintBottom - caption);
    };
    return hasRoom(own, own) &&
           hasRoom(std::max(screen.largestScale, own), measure::leastPaddings * own) &&
           !isWider(cut, size, screen.columnWidth);
}

double QuotationFit::authorHeight(double scale, double columnWidth) const {
    const double size = measure::authorSize * scale;
    const double tracking = inUnits(measure::authorTracking, size);
    std::vector<RowPiece> pieces = author_.pieces.front();
    const std::vector<RowPiece>& tracked = trackedAuthor_.pieces.front();
    for (std::size_t i = 0; i < std::min(pieces.size(), tracked.size()); ++i) {
        pieces[i].width += (tracked[i].width - pieces[i].width) * tracking;
        pieces[i].advance += (tracked[i].advance - pieces[i].advance) * tracking;
    }
    const std::size_t rows = rowCount(pieces, inUnits(columnWidth, size));
    return inPoints(author_.rowHeight, size) * static_cast<double>(std::max<std::size_t>(rows, 1));
}

double QuotationFit::linesHeight(const Cut& cut, double size, double columnWidth) const {
    const double column = inUnits(columnWidth, size);
    const double row = inPoints(words_.rowHeight, size);
    double height = 0;
    qsizetype begin = 0;
    for (const qsizetype end : cut.lineEnds) {
        std::size_t rows = 1;
        for (qsizetype word = begin; word < end; ++word) {
            // Among other words it has no more rows than the text has there.
            const double width = end - begin == 1 ? column : unbounded;
            rows += rowCount(words_.pieces[static_cast<std::size_t>(word)], width) - 1;
        }
        height += rows == 1 ? wholePoints(row) : static_cast<double>(rows) * row;
        height += begin > 0 ? measure::lineSpacing * size / measure::quoteSize : 0;
        begin = end;
    }
    return height;
}

// More than a line of these words can be wide, with spaces and kerning.
double QuotationFit::widthAtMost(qsizetype begin, qsizetype end) const {
    constexpr double widestSpace = 0.5 * shapingSize;
    constexpr double kerning = 1.1;
    double width = 0;
    for (qsizetype word = begin; word < end; ++word) {
        width += wordWidths_[static_cast<std::size_t>(word)] + widestSpace;
    }
    return kerning * width;
}

// Whether a line of several words is wider than the column, or an unbreakable part of
// a word. Measures no more lines than needed.
bool QuotationFit::isWider(Cut& cut, double size, double columnWidth) {
    const double column = inUnits(columnWidth, size);
    for (std::size_t i = 0; cut.widest <= column && i < cut.lineEnds.size(); ++i) {
        const qsizetype begin = i > 0 ? cut.lineEnds[i - 1] : 0;
        const qsizetype end = cut.lineEnds[i];
        if (cut.measured[i] || (end - begin > 1 && widthAtMost(begin, end) <= column)) {
            continue;
        }
        cut.measured[i] = true;
        if (end - begin > 1) {
            cut.widest =
                std::max(cut.widest, unbrokenWidth(balance_.line(begin, end), texts_.face));
            ++measurements_;
        } else {
            for (const RowPiece& piece : words_.pieces[static_cast<std::size_t>(begin)]) {
                cut.widest = std::max(cut.widest, piece.width);
            }
        }
    }
    return cut.widest > column;
}

} // namespace morrowleaf
