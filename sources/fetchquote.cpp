// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/fetchquote.h"

#include "base/job.h"
#include "sources/parsequote.h"
#include "sources/sourcebytes.h"

#include <QThreadPool>
#include <QTimer>

#include <utility>

namespace morrowleaf {

using namespace std::chrono_literals;

namespace {

constexpr auto deadline = 6s;                       // from the call to the answer
constexpr auto shutdownTimeout = 200ms;             // for all loads, when the fetcher is destroyed
constexpr qsizetype bodyLimit = qsizetype{4} << 20; // bytes, decoded

// Counts loads that are stuck too, so that their threads cannot accumulate.
constexpr int loadLimit = 32;

} // namespace

// One load, from the call to its answer.
class QuoteFetcher::Load : public QObject {
public:
    Load(QuoteFetcher& fetcher, const QString& source, Done done)
        : QObject(&fetcher)
        , done_(std::move(done)) {
        if (fetcher.pool_->activeThreadCount() >= loadLimit) {
            QTimer::singleShot(0, this, [this] { answer(std::nullopt); });
            return;
        }
        QTimer::singleShot(deadline, Qt::PreciseTimer, this, [this] { answer(std::nullopt); });
        const auto load =
            [source, random = fetcher.random_](const StopToken& stop) -> std::optional<Quote> {
            const std::optional<QByteArray> body = loadSource(source, bodyLimit, stop);
            return body && !stop.isRequested() ? parseQuote(*body, random) : std::nullopt;
        };
        job_ =
            Job(*fetcher.pool_, load, [this](const std::optional<Quote>& quote) { answer(quote); });
    }

private:
    // `done_` may destroy the fetcher.
    void answer(const std::optional<Quote>& quote) {
        job_ = {};
        if (const Done done = std::exchange(done_, nullptr)) {
            deleteLater();
            done(quote);
        }
    }

    Done done_;
    Job job_;
};

QuoteFetcher::QuoteFetcher(RandomIndex random, QObject* parent)
    : QObject(parent)
    , random_(std::move(random))
    , pool_(std::make_unique<QThreadPool>()) {
    pool_->setMaxThreadCount(loadLimit);
    pool_->setExpiryTimeout(0); // an idle program keeps no threads
}

QuoteFetcher::~QuoteFetcher() {
    const QObjectList loads = children();
    qDeleteAll(loads);
    if (!pool_->waitForDone(static_cast<int>(std::chrono::milliseconds(shutdownTimeout).count()))) {
        static_cast<void>(pool_.release()); // its destructor would wait
    }
}

void QuoteFetcher::fetchQuote(const QString& from, Done done) {
    new Load(*this, from, std::move(done)); // owned by its parent; deletes itself after the answer
}

QuoteLoader QuoteFetcher::loader() {
    return [this](const QString& source, Done done) { fetchQuote(source, std::move(done)); };
}

} // namespace morrowleaf
