// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/fetchquote.h"

#include <QDeadlineTimer>

namespace morrowleaf {

using namespace std::chrono_literals;

namespace {

constexpr auto partingTime = 200ms;

// Loads that hang in the kernel cannot be ended; no more than these pile up.
constexpr qsizetype loadLimit = 32;

} // namespace

QuoteFetcher::QuoteFetcher(RandomIndex random, const LoadLimits& limits, QObject* parent)
    : QObject(parent)
    , random_(std::move(random))
    , limits_(limits) {}

QuoteFetcher::~QuoteFetcher() {
    const auto loads = findChildren<QuoteLoad*>(Qt::FindDirectChildrenOnly);
    for (QuoteLoad* load : loads) {
        load->stop();
    }
    const QDeadlineTimer deadline(partingTime);
    for (QuoteLoad* load : loads) {
        load->wait(std::chrono::milliseconds(deadline.remainingTime()));
    }
}

void QuoteFetcher::fetchQuote(const QString& from, QuoteLoad::Done done) {
    if (findChildren<QuoteLoad*>(Qt::FindDirectChildrenOnly).size() >= loadLimit) {
        QMetaObject::invokeMethod(
            this, [done = std::move(done)] { done(std::nullopt); }, Qt::QueuedConnection);
        return;
    }
    auto* load = new QuoteLoad(from, random_, limits_, std::move(done), this);
    connect(load, &QuoteLoad::ended, load, &QObject::deleteLater);
}

QuoteLoader QuoteFetcher::loader() {
    return [this](const QString& source, QuoteLoad::Done done) {
        fetchQuote(source, std::move(done));
    };
}

} // namespace morrowleaf
