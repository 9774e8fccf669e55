// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

namespace morrowleaf {

// Seconds, from an arbitrary origin, of a clock that nobody sets and that goes
// on while the machine sleeps, where the system has one. Any thread.
double uptime();

} // namespace morrowleaf
