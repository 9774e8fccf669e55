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

// Loads quotations from sources: web addresses and local files. The program has one such
// object; it lives on the main thread and delivers all answers there.
//
// Each load runs on a thread of a pool. A load that the kernel blocks (in the resolver,
// or on a file system that hangs) cannot be stopped: it is answered at its deadline, but
// keeps its thread. Destroying this object ends all loads without an answer; that takes
// up to 200 ms and abandons threads that are still busy then.
class QuoteFetcher : public QObject {
    Q_OBJECT

public:
    using Done = std::function<void(std::optional<Quote>)>;

    // `random` is called on the threads of the pool.
    explicit QuoteFetcher(RandomIndex random = secureRandomIndex(), QObject* parent = nullptr);
    ~QuoteFetcher() override;

    // Loads a source as the user typed it. Calls `done` once, later, after 6 seconds at
    // most, with std::nullopt on any failure.
    void fetchQuote(const QString& from, Done done);

    // fetchQuote() of this object, which must outlive the result.
    QuoteLoader loader();

private:
    class Load;

    RandomIndex random_;
    std::unique_ptr<QThreadPool> pool_;
};

} // namespace morrowleaf
