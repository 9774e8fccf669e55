// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/moment.h"
#include "base/randomindex.h"
#include "quotes/quote.h"

namespace morrowleaf {

// The built-in quotation of the moment's local calendar day.
Quote quoteOfTheDay(const Moment& moment);

// The built-in quotation that a frequency calls for: "6h" and "12h" count
// slots of UTC since 1970, "every" draws anew, anything else is the quotation
// of the day. For "6h" and "12h" the division truncates toward zero; an instant
// whose slot leaves a negative remainder (so before 1970), or one that is not
// a representable number of seconds, is a fatal error.
Quote scheduledQuote(const Moment& moment, const QString& frequency, const RandomIndex& random);

} // namespace morrowleaf
