// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>
#include <span>
#include <variant>

namespace morrowleaf {

// The one table of all settings: key, type, default and range. Registered defaults, Reset
// and the controls take their values from here; docs/settings.md says what each setting
// means, and a test compares its table with this one.
//
// `initial` is the default. Ranges are those that the controls offer: a stored value
// outside is read unchanged, and its users must tolerate it.

struct IntegerSetting {
    using Value = qint64;
    QLatin1StringView key;
    qint64 initial;
    qint64 lowest;
    qint64 highest;

    operator QString() const { return key; }
};

struct RealSetting {
    using Value = double;
    QLatin1StringView key;
    double initial;
    double lowest;
    double highest;

    operator QString() const { return key; }
};

struct FlagSetting {
    using Value = bool;
    QLatin1StringView key;
    bool initial;

    operator QString() const { return key; }
};

struct TextSetting {
    using Value = QString;
    QLatin1StringView key;
    std::optional<QLatin1StringView> initial; // std::nullopt: absent until first written
    // Read if the key has neither a stored nor a registered text.
    QLatin1StringView fallback = initial.value_or(QLatin1StringView(""));
    std::span<const QLatin1StringView> choices{}; // empty: any text

    operator QString() const { return key; }
};

// Has no default; reads as empty until it is first written.
struct TextListSetting {
    using Value = QStringList;
    QLatin1StringView key;

    operator QString() const { return key; }
};

namespace K {

using namespace Qt::Literals::StringLiterals;

inline constexpr std::array fontChoices{"fraunces"_L1, "serif"_L1, "sans"_L1, "rounded"_L1,
                                        "mono"_L1};
inline constexpr std::array textAnimChoices{"fade"_L1, "handwrite"_L1, "typewriter"_L1, "rise"_L1,
                                            "blur"_L1};
inline constexpr std::array screenAnimChoices{"drift"_L1, "still"_L1, "breathe"_L1, "aurora"_L1,
                                              "zoom"_L1};
inline constexpr std::array frequencyChoices{"6h"_L1, "12h"_L1, "24h"_L1, "every"_L1};

inline constexpr IntegerSetting palette{
    .key = "paletteIndex"_L1, .initial = -1, .lowest = -1, .highest = 8};
// The only fallback that differs from the default, on purpose: the default typeface is
// part of the look that the program registers at its start.
inline constexpr TextSetting font{.key = "fontDesign"_L1,
                                  .initial = "fraunces"_L1,
                                  .fallback = "serif"_L1,
                                  .choices = fontChoices};
inline constexpr RealSetting textScale{
    .key = "textScale"_L1, .initial = 1.0, .lowest = 0.7, .highest = 1.6};
inline constexpr FlagSetting grain{.key = "grainEnabled"_L1, .initial = true};
inline constexpr RealSetting vignette{
    .key = "vignetteStrength"_L1, .initial = 0.55, .lowest = 0, .highest = 0.85};
inline constexpr RealSetting transparency{
    .key = "backdropTransparency"_L1, .initial = 0.0, .lowest = 0, .highest = 1};
inline constexpr FlagSetting liquidGlass{.key = "useLiquidGlass"_L1, .initial = true};
inline constexpr TextSetting textAnim{
    .key = "textAnimation"_L1, .initial = "fade"_L1, .choices = textAnimChoices};
inline constexpr TextSetting screenAnim{
    .key = "screenAnimation"_L1, .initial = "drift"_L1, .choices = screenAnimChoices};
inline constexpr RealSetting dismiss{
    .key = "dismissSeconds"_L1, .initial = 15.0, .lowest = 5, .highest = 60};
inline constexpr FlagSetting showOnWake{.key = "showOnWake"_L1, .initial = true};
inline constexpr TextSetting source{.key = "quoteSourceURL"_L1, .initial = ""_L1};
inline constexpr TextSetting frequency{
    .key = "quoteFrequency"_L1, .initial = "24h"_L1, .choices = frequencyChoices};
inline constexpr TextSetting bgImage{.key = "backgroundImagePath"_L1, .initial = ""_L1};
inline constexpr TextListSetting customBGs{.key = "customBackgrounds"_L1};
inline constexpr TextSetting cachedText{.key = "cachedQuoteText"_L1, .initial = {}};
inline constexpr TextSetting cachedAuthor{
    .key = "cachedQuoteAuthor"_L1, .initial = {}, .fallback = "Unknown"_L1};

} // namespace K

using AnySetting = std::variant<const IntegerSetting*, const RealSetting*, const FlagSetting*,
                                const TextSetting*, const TextListSetting*>;

// Every setting, in the order in which the defaults are registered.
inline constexpr std::array<AnySetting, 17> allSettings{
    &K::palette,      &K::font,        &K::textScale, &K::grain,      &K::vignette,
    &K::transparency, &K::liquidGlass, &K::textAnim,  &K::screenAnim, &K::dismiss,
    &K::showOnWake,   &K::source,      &K::frequency, &K::bgImage,    &K::customBGs,
    &K::cachedText,   &K::cachedAuthor};

// The settings that Reset sets to their defaults, in this order.
inline constexpr std::array<AnySetting, 10> settingsOfReset{
    &K::bgImage,      &K::palette,     &K::font,     &K::textScale,  &K::vignette,
    &K::transparency, &K::liquidGlass, &K::textAnim, &K::screenAnim, &K::grain};

} // namespace morrowleaf
