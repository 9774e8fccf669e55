// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/moment.h"

#include <cstdio>

namespace morrowleaf {

class SettingsStore;

// Runs line balancing, the schedule and the palettes over the built-in quotations and the
// 400 days from `now`, and writes one line in UTF-8 to `out`. Removes a quotation
// frequency that the user has chosen. Ends the program (qFatal) on a date that cannot be
// represented; it never fails otherwise.
void selftest(SettingsStore& store, std::FILE* out = stdout, const Moment& now = Moment::now());

} // namespace morrowleaf
