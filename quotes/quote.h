// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace morrowleaf {

// One quotation. The author may be empty when an outside source gives none.
struct Quote {
    QString text; // without quotation marks
    QString author;

    bool operator==(const Quote&) const = default;
};

// Starts one load of a source as the user typed it; `done` is called at most
// once, later, on the main thread, with nothing on any failure.
using QuoteLoader =
    std::function<void(const QString& source, std::function<void(std::optional<Quote>)> done)>;

} // namespace morrowleaf
