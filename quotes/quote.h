// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace morrowleaf {

// One quotation. The author may be empty if a source gives none.
struct Quote {
    QString text; // without quotation marks
    QString author;

    bool operator==(const Quote&) const = default;
};

// Loads a quotation from a source as the user typed it. Calls `done` later and at most
// once, on the main thread, with std::nullopt on any failure. Main thread.
using QuoteLoader =
    std::function<void(const QString& source, std::function<void(std::optional<Quote>)> done)>;

} // namespace morrowleaf
