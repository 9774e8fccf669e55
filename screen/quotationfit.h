// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "textanim/linebalancing.h"
#include "textanim/textlayout.h"

#include <QFont>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace morrowleaf {

// The size of a quotation on a screen, and its lines in that size. The size is the
// wished one, or the largest whose own column fits between header and hint. That limit
// does not depend on the wish, so that a larger wish never gives a smaller size.
// Sizes and lengths are in points.
class QuotationFit {
public:
    struct Texts {
        QString quotation;
        QFont face;
        qsizetype longest = 0; // characters that count of a single word
        QString author;        // as shown
        QFont captionFace;     // of author, header and hint

        bool operator==(const Texts&) const = default;
    };
    struct Screen {
        double viewHeight = 0;
        double columnWidth = 0;
        double largestScale = 1;                // the largest s × k that can be chosen
        std::function<int(double size)> target; // the characters in a line
    };
    struct Result {
        double size = 0;
        QStringList lines;
        // For each line of a single word its pieces; for the others none.
        std::vector<std::vector<RowPiece>> pieces;
    };

    QuotationFit() = default;
    explicit QuotationFit(const Texts& texts);

    const Texts& texts() const { return texts_; }
    Result fit(double wished, const Screen& screen);
    // How many texts have been measured, of which each has a layout of its own.
    int measurements() const { return measurements_; }

private:
    // The lines for one or more targets.
    struct Cut {
        int target = 0; // the smallest of them
        std::vector<qsizetype> lineEnds;
        std::vector<bool> measured; // the lines of which `widest` is the width
        double widest = 0;
    };

    void measureWords(const QStringList& words);
    double widthAtMost(qsizetype begin, qsizetype end) const;
    double authorHeight(double scale, double columnWidth) const;
    double linesHeight(const Cut& cut, double size, double columnWidth) const;
    bool isWider(Cut& cut, double size, double columnWidth);
    bool fits(Cut& cut, double size, const Screen& screen);
    double largestSize(Cut& cut, const Screen& screen);
    const Cut& cutFor(double size, const Screen& screen);

    Texts texts_;
    LineBalance balance_{QString()};
    std::vector<Cut> cuts_; // by descending target
    MeasuredTexts words_;
    std::vector<double> wordWidths_;
    MeasuredTexts author_;
    MeasuredTexts trackedAuthor_; // by one unit
    double markRow_ = 0;          // heights of rows, in the units of TextRow
    double captionRow_ = 0;
    int measurements_ = 0;
};

} // namespace morrowleaf
