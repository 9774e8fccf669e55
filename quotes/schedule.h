// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/moment.h"
#include "base/randomindex.h"
#include "quotes/quote.h"

namespace morrowleaf {

// The built-in quotation of the moment's local calendar day.
Quote quoteOfTheDay(const Moment& moment);

// The built-in quotation for a frequency: "6h" and "12h" count slots of UTC
// since 1970, "every" draws one with `random`, and anything else gives the
// quotation of the day. For "6h" and "12h" the divisions truncate toward zero.
// Ends the program (qFatal) if the slot leaves a negative remainder, which only
// instants before 1970 do, or if the seconds are not representable in 64 bits.
Quote scheduledQuote(const Moment& moment, const QString& frequency, const RandomIndex& random);

} // namespace morrowleaf
