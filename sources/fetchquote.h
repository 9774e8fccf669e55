// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "quotes/quote.h"
#include "sources/quoteload.h"

#include <QObject>

namespace morrowleaf {

// Loads quotations from sources: web addresses and local files. One object for
// the program; it lives on the main thread, and all answers come there.
//
// A load takes six seconds at most and answers with nothing on any failure.
// Nothing of it runs on the main thread. Destroying this object ends all loads
// without an answer and takes a moment at most, whatever they wait for.
class QuoteFetcher : public QObject {
    Q_OBJECT

public:
    // `random` is called in the threads of the loads.
    explicit QuoteFetcher(RandomIndex random = secureRandomIndex(), const LoadLimits& limits = {},
                          QObject* parent = nullptr);
    ~QuoteFetcher() override;

    // Starts one load of a source as the user typed it.
    void fetchQuote(const QString& from, QuoteLoad::Done done);

    // fetchQuote of this object, which must outlive its use.
    QuoteLoader loader();

private:
    RandomIndex random_;
    LoadLimits limits_;
};

} // namespace morrowleaf
