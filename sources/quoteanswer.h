// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "quotes/quote.h"

#include <QByteArrayView>

#include <optional>
#include <span>

namespace morrowleaf {

inline constexpr qsizetype bodyLimit = qsizetype{4} << 20; // bytes, of a source

// How a quotation crosses from the reader program: both texts in UTF-8, each with a byte
// 0xFF behind it, which UTF-8 never contains. The largest body in UTF-16 grows by half.
inline constexpr qsizetype quoteAnswerSize = bodyLimit / 2 * 3 + 64; // bytes

// Returns whether the quotation fits.
[[nodiscard]] bool writeQuoteAnswer(const Quote& quote, std::span<char> answer);

// std::nullopt for anything but two texts that are not empty. Any thread.
[[nodiscard]] std::optional<Quote> readQuoteAnswer(QByteArrayView answer);

} // namespace morrowleaf
