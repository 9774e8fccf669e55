// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/moment.h"

#include <cstdio>

namespace morrowleaf {

class SettingsStore;

// Runs line balancing, the schedule and the palettes over what they will meet
// in the 400 days from `now`, and writes one line, in UTF-8, to `out`. A
// frequency that the user had chosen is lost. A date that cannot be reckoned
// is a fatal error; there is no other failing outcome.
void selftest(SettingsStore& store, std::FILE* out = stdout, const Moment& now = Moment::now());

} // namespace morrowleaf
