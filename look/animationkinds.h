// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <array>
#include <optional>

namespace morrowleaf {

// How the quotation comes onto the screen.
enum class TextAnim { Fade, Handwrite, Typewriter, Rise, Blur };
// How the backdrop moves.
enum class ScreenAnim { Drift, Still, Breathe, Aurora, Zoom };

inline constexpr std::array allTextAnims{TextAnim::Fade, TextAnim::Handwrite, TextAnim::Typewriter,
                                         TextAnim::Rise, TextAnim::Blur};
inline constexpr std::array allScreenAnims{ScreenAnim::Drift, ScreenAnim::Still,
                                           ScreenAnim::Breathe, ScreenAnim::Aurora,
                                           ScreenAnim::Zoom};

// The stored form of a kind, and back. Comparisons are exact; an unknown text
// gives std::nullopt.
QString rawValue(TextAnim kind);
QString rawValue(ScreenAnim kind);
std::optional<TextAnim> textAnimFromRawValue(const QString& raw);
std::optional<ScreenAnim> screenAnimFromRawValue(const QString& raw);

// The kind for a stored text; an unknown text gives the first kind.
TextAnim storedTextAnim(const QString& raw);
ScreenAnim storedScreenAnim(const QString& raw);

// As the appearance editor shows it.
QString label(TextAnim kind);
QString label(ScreenAnim kind);

// Phase units per second of wall-clock time; 0 stands still.
double speed(ScreenAnim kind);
// Swing of the mesh points, as a share of the backdrop's size.
double amplitude(ScreenAnim kind);
// The scale of the mesh about the backdrop's centre at a phase.
double backdropScale(ScreenAnim kind, double phase);

} // namespace morrowleaf
