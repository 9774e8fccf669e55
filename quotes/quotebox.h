// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/moment.h"
#include "base/randomindex.h"
#include "quotes/quote.h"

#include <QObject>

namespace morrowleaf {

class SettingsStore;

// Holds the quotation on show. Its first value comes from the cache (when a
// source is set) or the schedule; one load of the source may replace it once.
class QuoteBox : public QObject {
    Q_OBJECT

public:
    // `store` outlives every load that the box starts.
    QuoteBox(SettingsStore& store, QuoteLoader loader, const Clock& clock,
             const RandomIndex& random, QObject* parent = nullptr);

    const Quote& quote() const { return quote_; }
    void refresh();

signals:
    void quoteWillChange(const Quote& next); // the old value still stands
    void quoteChanged();

private:
    void assign(const Quote& next);

    SettingsStore& store_;
    QuoteLoader loader_;
    Quote quote_;
};

} // namespace morrowleaf
