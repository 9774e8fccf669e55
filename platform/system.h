// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdio>

namespace morrowleaf {

// Seconds on a monotonic clock with an arbitrary origin. Where the system has such a
// clock, it also runs while the machine sleeps. Any thread.
double uptime();

// Returns freed heap memory to the system; does nothing if the allocator does not support
// that. Takes a few milliseconds. Any thread.
void releaseFreeMemory();

// The folder in which this system keeps the settings of this program. Any thread.
QString settingsFolder();

// The folder in which this system keeps what this program remembers by itself, which
// need not exist. Any thread.
QString stateFolder();

// Makes writing to a pipe or a socket that nobody reads an error; by default it ends the
// process. Call at the start, before there are threads.
void ignoreBrokenPipes();

// Discards what is written to standard error from now on. Returns a stream, which stays
// open, that still writes there. Returns null and discards nothing if that fails, if the
// system has no such means, or if the user asked for a trace that a library writes there.
[[nodiscard]] std::FILE* divertErrorOutput();

} // namespace morrowleaf
