// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

namespace morrowleaf {

inline constexpr double charsPerSecond = 26;

// Characters of a line of `length` that stand `seconds` after its delay; a time
// that is not finite or beyond 64-bit counting is a fatal error.
qint64 typedCharacters(double seconds, qint64 length);

// The first instant, in seconds after the delay, at which the whole line stands.
double typingDuration(qint64 length);

} // namespace morrowleaf
