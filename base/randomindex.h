// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QRandomGenerator>

#include <functional>

namespace morrowleaf {

// Draws uniformly from 0 to count - 1; count is at least 1.
using RandomIndex = std::function<qsizetype(qsizetype count)>;

// Draws from the system's secure random source. May be called on any thread.
inline RandomIndex secureRandomIndex() {
    return [](qsizetype count) -> qsizetype {
        return QRandomGenerator::system()->bounded(qint64{count});
    };
}

} // namespace morrowleaf
