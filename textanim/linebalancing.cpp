// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/linebalancing.h"

#include "base/graphemes.h"

#include <algorithm>
#include <cmath>

namespace morrowleaf {

namespace {

// The characters by which a line may exceed the mean length.
constexpr double slack = 2;

double lineLimit(qsizetype textLength, int target) {
    if (target == 0) {
        qFatal("Lines of 0 characters cannot be balanced.");
    }
    const auto length = static_cast<double>(textLength);
    const double lines = std::max(std::ceil(length / target), 1.0);
    return std::ceil(length / lines) + slack;
}

} // namespace

LineBalance::LineBalance(const QString& text)
    : length_(characterCount(text))
    , words_(text.split(u' ', Qt::SkipEmptyParts)) {
    const QList<qsizetype> ends = characterEnds(words_.join(u' '));
    const auto endOf = [&ends](qsizetype count) { return count > 0 ? ends[count - 1] : 0; };
    qsizetype begun = 0;
    const auto begunBefore = [&](qsizetype place) {
        while (begun < ends.size() && endOf(begun) < place) {
            ++begun;
        }
        return begun;
    };
    qsizetype begin = 0;
    for (const QString& word : words_) {
        const qsizetype before = begunBefore(begin);
        const bool isSplit = endOf(before) > begin;
        counts_.push_back({before, begunBefore(begin + word.size()), isSplit});
        begin += word.size() + 1;
    }
}

// The length of a line of these words.
qsizetype LineBalance::characters(qsizetype begin, qsizetype end) const {
    const Word& first = counts_[static_cast<std::size_t>(begin)];
    const Word& last = counts_[static_cast<std::size_t>(end - 1)];
    return last.within - first.before + (first.isSplit ? 1 : 0);
}

std::vector<qsizetype> LineBalance::lineEnds(int target) const {
    if (words_.size() < 2) {
        return std::vector<qsizetype>(counts_.size(), 1);
    }
    const double limit = lineLimit(length_, target);
    std::vector<qsizetype> ends;
    qsizetype begin = 0;
    for (qsizetype i = 1; i < words_.size(); ++i) {
        if (static_cast<double>(characters(begin, i) + 1 + characters(i, i + 1)) > limit) {
            ends.push_back(i);
            begin = i;
        }
    }
    ends.push_back(words_.size());
    return ends;
}

QString LineBalance::line(qsizetype begin, qsizetype end) const {
    return words_.mid(begin, end - begin).join(u' ');
}

QStringList balancedLines(const QString& text, int target) {
    const LineBalance balance(text);
    QStringList lines;
    qsizetype begin = 0;
    for (const qsizetype end : balance.lineEnds(target)) {
        lines.append(balance.line(begin, end));
        begin = end;
    }
    return lines;
}

} // namespace morrowleaf
