// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/quoteload.h"

#include "sources/localfile.h"
#include "sources/parsequote.h"
#include "sources/sourceaddress.h"
#include "sources/webload.h"

#include <QDeadlineTimer>
#include <QTimer>

namespace morrowleaf {

class QuoteLoad::Worker : public QThread {
public:
    Worker(QString source, RandomIndex random, qsizetype limit)
        : source_(std::move(source))
        , random_(std::move(random))
        , limit_(limit) {}

    const std::optional<Quote>& quote() const { return quote_; } // once finished

protected:
    void run() override {
        const std::optional<QByteArray> body = load();
        if (body && !isInterruptionRequested()) {
            quote_ = parseQuote(*body, random_);
        }
    }

private:
    std::optional<QByteArray> load() {
        const std::optional<SourceAddress> address = sourceAddress(source_);
        if (!address) {
            return std::nullopt;
        }
        if (address->path.isEmpty()) {
            return loadFromWeb(address->url, limit_);
        }
        return readLocalFile(address->path, limit_, [this] { return isInterruptionRequested(); });
    }

    QString source_;
    RandomIndex random_;
    qsizetype limit_;
    std::optional<Quote> quote_;
};

QuoteLoad::QuoteLoad(const QString& source, const RandomIndex& random, const LoadLimits& limits,
                     Done done, QObject* parent)
    : QObject(parent)
    , worker_(std::make_unique<Worker>(source, random, limits.bytes))
    , done_(std::move(done)) {
    connect(worker_.get(), &QThread::finished, this, [this] {
        emit ended();
        answer(worker_->quote());
    });
    QTimer::singleShot(limits.deadline, Qt::PreciseTimer, this, [this] {
        stop();
        answer(std::nullopt);
    });
    worker_->start();
}

QuoteLoad::~QuoteLoad() {
    stop();
    if (!worker_->isFinished()) {
        // It may be stuck in the kernel. Waiting would hang the program and
        // deleting a running thread would end it.
        worker_->disconnect(this);
        static_cast<void>(worker_.release());
    }
}

void QuoteLoad::stop() {
    worker_->requestInterruption();
    worker_->quit();
}

bool QuoteLoad::wait(std::chrono::milliseconds time) {
    return worker_->wait(QDeadlineTimer(time));
}

void QuoteLoad::answer(const std::optional<Quote>& quote) {
    if (const Done done = std::exchange(done_, nullptr)) {
        done(quote);
    }
}

} // namespace morrowleaf
