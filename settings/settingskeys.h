// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QLatin1StringView>

namespace morrowleaf {

class SettingsStore;

// Every key of the settings store; spelled nowhere else.
namespace K {
inline constexpr QLatin1StringView palette{"paletteIndex"};
inline constexpr QLatin1StringView font{"fontDesign"};
inline constexpr QLatin1StringView textScale{"textScale"};
inline constexpr QLatin1StringView grain{"grainEnabled"};
inline constexpr QLatin1StringView vignette{"vignetteStrength"};
inline constexpr QLatin1StringView transparency{"backdropTransparency"};
inline constexpr QLatin1StringView liquidGlass{"useLiquidGlass"};
inline constexpr QLatin1StringView textAnim{"textAnimation"};
inline constexpr QLatin1StringView screenAnim{"screenAnimation"};
inline constexpr QLatin1StringView dismiss{"dismissSeconds"};
inline constexpr QLatin1StringView showOnWake{"showOnWake"};
inline constexpr QLatin1StringView source{"quoteSourceURL"};
inline constexpr QLatin1StringView frequency{"quoteFrequency"};
inline constexpr QLatin1StringView bgImage{"backgroundImagePath"};
inline constexpr QLatin1StringView customBGs{"customBackgrounds"};
inline constexpr QLatin1StringView cachedText{"cachedQuoteText"};
inline constexpr QLatin1StringView cachedAuthor{"cachedQuoteAuthor"};
} // namespace K

// The defaults of the first fourteen keys; the last three are absent until
// first written. What binds a control to a key falls back to these.
QJsonObject appDefaults();

// Registers the above.
void registerAppDefaults(SettingsStore& store);

} // namespace morrowleaf
