// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/readers.h"
#include "quotes/quote.h"

#include <QObject>

#include <functional>
#include <map>
#include <optional>

namespace morrowleaf {

// Loads quotations from sources: web addresses and local files. The program has one such
// object; it lives on the main thread and delivers all answers there.
//
// Each source is read by a process of its own, which is killed at its deadline. At most
// four run at the same time. Destroying this object ends all loads at once, without an
// answer.
class QuoteFetcher : public QObject {
    Q_OBJECT

public:
    using Done = std::function<void(std::optional<Quote>)>;

    // `reader` is the path of the program that reads a source.
    explicit QuoteFetcher(const QString& reader = readerPath(QStringLiteral("quotereader")),
                          QObject* parent = nullptr);

    // Loads a source as the user typed it. Calls `done` once, later, after 6 seconds at
    // most, with std::nullopt on any failure.
    void fetchQuote(const QString& from, Done done);

    // fetchQuote() of this object, which must outlive the result.
    QuoteLoader loader();

private:
    Readers readers_;
    std::map<int, Reading> loads_; // in progress
    int lastLoad_ = 0;
};

} // namespace morrowleaf
