// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/moment.h"
#include "base/randomindex.h"
#include "quotes/quote.h"

namespace morrowleaf {

// The built-in quotation of the local calendar day at `moment`.
Quote quoteOfTheDay(const Moment& moment);

// The built-in quotation for a frequency: "6h" and "12h" count slots of UTC since 1970,
// "every" draws one with `random`, and anything else gives the quotation of the day. For
// "6h" and "12h" the divisions truncate toward zero. Ends the program (qFatal) if the
// slot has a negative remainder, which only happens before 1970, or if the seconds do not
// fit into 64 bits.
Quote scheduledQuote(const Moment& moment, const QString& frequency, const RandomIndex& random);

} // namespace morrowleaf
