// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/moment.h"
#include "base/randomindex.h"
#include "quotes/quote.h"

namespace morrowleaf {

class BGStore;
class FontBook;
class FrameClock;
struct Platform;
class SettingsStore;
class Timing;

// The objects that live as long as the program. Created once, at the start, and passed by
// reference within this room; the rooms below take from it what they need.
struct Services {
    SettingsStore& store;
    const FontBook& fonts;
    BGStore& photos;
    QuoteLoader loader; // loads one source, as the user typed it
    Platform& platform;
    Timing& timing;
    FrameClock& frames; // drives the quote screen and the animations of `timing`
    Clock clock = systemClock();
    RandomIndex random = secureRandomIndex();
};

} // namespace morrowleaf
