// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/sourcepresets.h"

#include <array>

namespace morrowleaf {

std::span<const SourcePreset> sourcePresets() {
    static const std::array<SourcePreset, 3> presets{{
        {QStringLiteral(u"ZenQuotes \u2014 quote of the day"),
         QStringLiteral("https://zenquotes.io/api/today")},
        {QStringLiteral(u"ZenQuotes \u2014 random"),
         QStringLiteral("https://zenquotes.io/api/random")},
        {QStringLiteral(u"DummyJSON \u2014 random"),
         QStringLiteral("https://dummyjson.com/quotes/random")},
    }};
    return presets;
}

} // namespace morrowleaf
