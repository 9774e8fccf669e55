// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/randomindex.h"
#include "quotes/quote.h"

#include <QByteArrayView>

#include <optional>

namespace morrowleaf {

// The quotation in a body: JSON of many shapes (`random` chooses an element of an array),
// else a plain text of fewer than 600 user-perceived characters. std::nullopt if there is
// none. Any thread.
[[nodiscard]] std::optional<Quote> parseQuote(QByteArrayView body, const RandomIndex& random);

} // namespace morrowleaf
