// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/fetchquote.h"

#include "sources/quoteanswer.h"
#include "sources/sourcebytes.h"

#include <QTimer>

#include <utility>

namespace morrowleaf {

using namespace std::chrono_literals;

namespace {
constexpr auto deadline = 6s; // from the call to the answer
constexpr int loadsAtOnce = 4;
} // namespace

QuoteFetcher::QuoteFetcher(const QString& reader, QObject* parent)
    : QObject(parent)
    , readers_(reader, loadsAtOnce) {}

void QuoteFetcher::fetchQuote(const QString& from, Done done) {
    if (!sourceAddress(from)) {
        QTimer::singleShot(0, this, [done = std::move(done)] { done(std::nullopt); });
        return;
    }
    const int load = ++lastLoad_;
    const auto answer = [this, load, done = std::move(done)](const AnswerBytes& bytes) {
        loads_.erase(load);
        done(bytes ? readQuoteAnswer(bytes.view()) : std::nullopt); // may destroy this
    };
    loads_[load] = readers_.read({.request = from.toUtf8(),
                                  .answerSize = quoteAnswerSize,
                                  .time = deadline,
                                  .counted = ReaderWish::Counted::FromWish},
                                 answer);
}

QuoteLoader QuoteFetcher::loader() {
    return [this](const QString& source, Done done) { fetchQuote(source, std::move(done)); };
}

} // namespace morrowleaf
