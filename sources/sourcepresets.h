// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <array>

namespace morrowleaf {

// A quotation service that the settings offer by name.
struct SourcePreset {
    QStringView label;
    QLatin1StringView address;
};

inline constexpr auto sourcePresets = [] {
    using namespace Qt::Literals::StringLiterals;
    return std::array{
        SourcePreset{u"ZenQuotes \u2014 quote of the day", "https://zenquotes.io/api/today"_L1},
        SourcePreset{u"ZenQuotes \u2014 random", "https://zenquotes.io/api/random"_L1},
        SourcePreset{u"DummyJSON \u2014 random", "https://dummyjson.com/quotes/random"_L1},
    };
}();

} // namespace morrowleaf
