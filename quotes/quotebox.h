#pragma once

#include "base/moment.h"
#include "base/randomindex.h"
#include "quotes/quote.h"

#include <QObject>

#include <functional>
#include <optional>

namespace morrowleaf {

class SettingsStore;

// Starts one load of a source; `done` is called at most once, later, on the
// main thread, with nothing on any failure.
using QuoteLoader =
    std::function<void(const QString& source, std::function<void(std::optional<Quote>)> done)>;

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
