// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "textanim/textlayout.h"

#include <QHash>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <functional>
#include <map>

namespace morrowleaf {

// The largest size, at most `wished`, that `fits`: the wished one, or the end of what
// fits above the largest half point that does. What is found depends on `wished` only
// as a bound, so that a larger wish never gives a smaller size. If nothing fits, it is
// the smaller of `wished` and `least`.
double largestFittingSize(double wished, double least, const std::function<bool(double)>& fits);

// A quotation in one face, before its size is known. Each word is shaped once, and
// asking for a size costs no shaping beyond that of lines which almost fill the column.
// Sizes and lengths are in points.
class QuotationFit {
public:
    QuotationFit() = default;
    // Of a word, only the first `longest` characters count.
    QuotationFit(const QString& text, const QFont& face, qsizetype longest);

    // Whether it is of this text and face.
    bool isOf(const QString& text, const QFont& face, qsizetype longest) const;

    // The lines for a column of that width: balanced for the target, or, where a line
    // of several words would be wider, for the next smaller one down to 16 with which
    // none is.
    QStringList lines(int target, double size, double width);

    // The height of each of these lines; `rounding` is applied to one of a single row.
    QList<double> lineHeights(int target, double size, double width,
                              const std::function<double(double)>& rounding);
    // Whether no word sticks out of a column of that width.
    bool wordsFit(double size, double width) const;

private:
    struct Line {
        QString text;
        bool isWord = false;
        bool isPlain = true; // without line breaks in it
        double width = 0;    // estimated from its words
        double ascent = 0;
        double descent = 0;
    };
    using Cut = std::vector<Line>;

    const MeasuredText& measured(const QString& text);
    double gapBetween(const QString& word, const QString& next);
    Line lineOf(const QString& text);
    const Cut& cut(int target);
    const Cut& fittingCut(int target, double column);
    bool isWider(const Line& line, double column);

    QString text_;
    QFont face_;
    qsizetype longest_ = 0;
    qsizetype characters_ = 0;
    double widestPiece_ = 0;
    QHash<QString, MeasuredText> measured_;
    std::map<int, Cut> cuts_; // by the number of lines that was aimed at
};

// The same for a text below the quotation, which is tracked.
class CaptionFit {
public:
    CaptionFit() = default;
    CaptionFit(const QString& text, const QFont& face);

    bool isOf(const QString& text, const QFont& face) const {
        return text == text_ && face == face_;
    }
    double height(double size, double tracking, double width) const;

private:
    QString text_;
    QFont face_;
    MeasuredText plain_;
    std::vector<RowPiece> tracked_; // by one unit more
};

} // namespace morrowleaf
