// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/randomindex.h"
#include "quotes/quote.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

class QThreadPool;

namespace morrowleaf {

// Loads quotations from sources: web addresses and local files. One object for
// the program; it lives on the main thread, and all answers come there.
//
// Loads run on threads of their own, since one that the kernel holds (in a
// resolver, or on a file system that hangs) cannot be ended: it is answered at
// its deadline and keeps its thread. Destroying this object ends all loads
// without an answer; it takes 200 ms at most and abandons threads that are
// still busy then.
class QuoteFetcher : public QObject {
    Q_OBJECT

public:
    using Done = std::function<void(std::optional<Quote>)>;

    // `random` is called on the threads of the loads.
    explicit QuoteFetcher(RandomIndex random = secureRandomIndex(), QObject* parent = nullptr);
    ~QuoteFetcher() override;

    // Loads a source as the user typed it. `done` is called once, later, after
    // 6 seconds at most, with std::nullopt on any failure.
    void fetchQuote(const QString& from, Done done);

    // fetchQuote of this object, which must outlive its use.
    QuoteLoader loader();

private:
    class Load;

    RandomIndex random_;
    std::unique_ptr<QThreadPool> pool_;
};

} // namespace morrowleaf
