// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/moment.h"
#include "base/randomindex.h"
#include "quotes/quote.h"

#include <QObject>

namespace morrowleaf {

class SettingsStore;

// Holds the quotation on show. Its first value comes from the cache in the settings (if a
// source is set) or from the schedule; the box then loads the source, which may replace
// it. A loaded quotation is cached even if the box no longer exists. Main thread.
class QuoteBox : public QObject {
    Q_OBJECT

public:
    // `store` must outlive every load that the box starts.
    QuoteBox(SettingsStore& store, QuoteLoader loader, const Clock& clock,
             const RandomIndex& random, QObject* parent = nullptr);

    const Quote& quote() const { return quote_; }
    // Loads the source again.
    void refresh();

signals:
    void quoteWillChange(const Quote& next); // quote() is still the old one
    void quoteChanged();

private:
    void assign(const Quote& next);

    SettingsStore& store_;
    QuoteLoader loader_;
    Quote quote_;
};

} // namespace morrowleaf
