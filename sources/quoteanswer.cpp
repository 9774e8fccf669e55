// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/quoteanswer.h"

#include <QStringDecoder>

#include <algorithm>

namespace morrowleaf {

namespace {

constexpr char endOfText = '\xFF';

// Takes one text off the front; an empty one if there is none.
QString takeText(QByteArrayView& answer) {
    const qsizetype end = answer.indexOf(endOfText);
    if (end < 0) {
        return {};
    }
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decode(answer.first(end));
    answer = answer.sliced(end + 1);
    return decode.hasError() ? QString() : text;
}

} // namespace

bool writeQuoteAnswer(const Quote& quote, std::span<char> answer) {
    const QByteArray bytes = quote.text.toUtf8() + endOfText + quote.author.toUtf8() + endOfText;
    if (static_cast<std::size_t>(bytes.size()) > answer.size()) {
        return false;
    }
    std::copy(bytes.begin(), bytes.end(), answer.begin());
    return true;
}

std::optional<Quote> readQuoteAnswer(QByteArrayView answer) {
    Quote quote;
    quote.text = takeText(answer);
    quote.author = takeText(answer);
    return quote.text.isEmpty() || quote.author.isEmpty() ? std::nullopt : std::optional(quote);
}

} // namespace morrowleaf
