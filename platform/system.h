// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

namespace morrowleaf {

// Seconds on a monotonic clock with an arbitrary origin. Where the system has such a
// clock, it also runs while the machine sleeps. Any thread.
double uptime();

// Returns freed heap memory to the system; does nothing if the allocator does not support
// that. Takes a few milliseconds. Any thread.
void releaseFreeMemory();

} // namespace morrowleaf
