// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/typewriter.h"

#include "textanim/motion.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace morrowleaf {

qint64 typedCharacters(double seconds, qint64 length) {
    const double count = std::max(seconds, 0.0) * charsPerSecond;
    if (!std::isfinite(seconds) || count >= 0x1p63) {
        qFatal("A line cannot be typed for %g seconds.", seconds);
    }
    return std::min(static_cast<qint64>(count), length);
}

double typingDuration(qint64 length) {
    double seconds = static_cast<double>(std::max(length, qint64{0})) / charsPerSecond;
    while (typedCharacters(seconds, length) < length) {
        seconds = std::nextafter(seconds, std::numeric_limits<double>::infinity());
    }
    return seconds;
}

// The characters stand one after another, each in its place at once.
Motion typewriter(qint64 characters) {
    const auto valuesAt = [characters](double seconds) {
        const qint64 typed = typedCharacters(seconds, characters);
        RevealValues values;
        if (typed < characters) {
            values.typed = typed;
        }
        return values;
    };
    return {valuesAt, typingDuration(characters)};
}

} // namespace morrowleaf
