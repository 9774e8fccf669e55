// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/randomindex.h"
#include "quotes/quote.h"

#include <QThread>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace morrowleaf {

// The bounds of one load.
struct LoadLimits {
    std::chrono::milliseconds deadline{6000};     // from the call to the answer
    qsizetype bytes = qsizetype{4} * 1024 * 1024; // of the decoded body
};

// One load of a source in a thread of its own. Answers once, on the thread
// that made it, at the deadline at the latest, even if the thread is stuck in
// a call that cannot be interrupted.
class QuoteLoad : public QObject {
    Q_OBJECT

public:
    using Done = std::function<void(std::optional<Quote>)>;

    QuoteLoad(const QString& source, const RandomIndex& random, const LoadLimits& limits, Done done,
              QObject* parent);
    // No answer comes any more. A thread that is still busy is left to itself.
    ~QuoteLoad() override;

    void stop();
    // Whether the thread has ended within the time.
    bool wait(std::chrono::milliseconds time);

signals:
    void ended(); // the thread is gone

private:
    class Worker;

    void answer(const std::optional<Quote>& quote);

    std::unique_ptr<Worker> worker_;
    Done done_;
};

} // namespace morrowleaf
