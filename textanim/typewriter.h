// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "textanim/linepainter.h"

#include <QtGlobal>

#include <memory>

namespace morrowleaf {

inline constexpr double charsPerSecond = 26;

// The number of characters of a line of `length` characters that are shown
// `seconds` after its delay: elapsed × 26, truncated. Seconds that are not
// finite, or too large to count in 64 bits, are a fatal error.
qint64 typedCharacters(double seconds, qint64 length);

// The first instant, in seconds after the delay, at which the whole line is shown.
double typingDuration(qint64 length);

// Draws the characters one after another, each at its final place. Seconds are as
// for typedCharacters().
std::unique_ptr<LinePainter> typewriterPainter(LateOutline text);

} // namespace morrowleaf
