// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "quotes/quote.h"

#include <QLatin1StringView>

#include <array>

namespace morrowleaf {

// A built-in quotation, as it is stored in the binary.
struct BuiltinQuote {
    QLatin1StringView text;
    QLatin1StringView author;

    operator Quote() const { return {QString(text), QString(author)}; }
};

inline constexpr qsizetype quoteCount = 124;

// The built-in collection. The schedule selects by index, so the order is part of the
// program's behaviour.
extern const std::array<BuiltinQuote, quoteCount> quotes;

} // namespace morrowleaf
