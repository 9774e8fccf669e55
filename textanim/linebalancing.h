// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace morrowleaf {

// Cuts a text into lines of nearly equal length, at spaces (U+0020) only; words
// are joined by single spaces. `target` is the preferred number of user-perceived
// characters in a line; 0 is a fatal error. A text without words gives no lines.
QStringList balancedLines(const QString& text, int target = 32);

// The same for several targets: the characters of the text are counted only once.
class LineBalance {
public:
    explicit LineBalance(const QString& text);

    const QStringList& words() const { return words_; }
    // For each line the index of the word after its last one.
    std::vector<qsizetype> lineEnds(int target) const;
    QString line(qsizetype begin, qsizetype end) const;

private:
    // Of the characters of all words, joined by spaces, those that begin …
    struct Word {
        qsizetype before = 0; // … before it
        qsizetype within = 0; // … before its end
        bool isSplit = false; // it begins inside a character, with a combining mark
    };
    qsizetype characters(qsizetype begin, qsizetype end) const;

    qsizetype length_ = 0; // characters of the text
    QStringList words_;
    std::vector<Word> counts_;
};

} // namespace morrowleaf
