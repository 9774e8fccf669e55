// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QString>

#include <array>

namespace morrowleaf {

// A quotation service that the settings offer by name.
struct SourcePreset {
    const char* label; // English, UTF-8
    QLatin1StringView address;
};

inline constexpr auto sourcePresets = [] {
    using namespace Qt::Literals::StringLiterals;
    return std::array{
        SourcePreset{QT_TRANSLATE_NOOP("SourcePreset", "ZenQuotes — quote of the day"),
                     "https://zenquotes.io/api/today"_L1},
        SourcePreset{QT_TRANSLATE_NOOP("SourcePreset", "ZenQuotes — random"),
                     "https://zenquotes.io/api/random"_L1},
        SourcePreset{QT_TRANSLATE_NOOP("SourcePreset", "DummyJSON — random"),
                     "https://dummyjson.com/quotes/random"_L1},
    };
}();

// The label in the language of the user.
inline QString sourcePresetLabel(const SourcePreset& preset) {
    return QCoreApplication::translate("SourcePreset", preset.label);
}

} // namespace morrowleaf
