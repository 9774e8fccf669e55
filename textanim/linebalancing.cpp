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

double lineLimit(const QString& text, int target) {
    if (target == 0) {
        qFatal("Lines of 0 characters cannot be balanced.");
    }
    const auto length = static_cast<double>(characterCount(text));
    const double lines = std::max(std::ceil(length / target), 1.0);
    return std::ceil(length / lines) + slack;
}

} // namespace

QStringList balancedLines(const QString& text, int target) {
    QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    if (words.size() < 2) {
        return words;
    }
    const double limit = lineLimit(text, target);
    QStringList lines;
    QString current;
    for (const QString& word : words) {
        if (current.isEmpty()) {
            current = word;
        } else if (static_cast<double>(characterCount(current) + 1 + characterCount(word)) <=
                   limit) {
            current += u' ' + word;
        } else {
            lines.append(current);
            current = word;
        }
    }
    lines.append(current);
    return lines;
}

} // namespace morrowleaf
