// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <array>
#include <optional>

namespace morrowleaf {

// How the lines of the quotation come in.
enum class TextAnim { Fade, Handwrite, Typewriter, Rise, Blur };
// How the backdrop moves.
enum class ScreenAnim { Drift, Still, Breathe, Aurora, Zoom };

inline constexpr std::array allTextAnims{TextAnim::Fade, TextAnim::Handwrite, TextAnim::Typewriter,
                                         TextAnim::Rise, TextAnim::Blur};
inline constexpr std::array allScreenAnims{ScreenAnim::Drift, ScreenAnim::Still,
                                           ScreenAnim::Breathe, ScreenAnim::Aurora,
                                           ScreenAnim::Zoom};

// The stored name of a kind, and the kind for a stored name. The comparison is
// exact; an unknown name gives std::nullopt.
QString rawValue(TextAnim kind);
QString rawValue(ScreenAnim kind);
[[nodiscard]] std::optional<TextAnim> textAnimFromRawValue(const QString& raw);
[[nodiscard]] std::optional<ScreenAnim> screenAnimFromRawValue(const QString& raw);

// The kind for a stored name; an unknown name gives the first kind.
TextAnim storedTextAnim(const QString& raw);
ScreenAnim storedScreenAnim(const QString& raw);

// The name that the appearance editor shows, in the language of the user.
QString label(TextAnim kind);
QString label(ScreenAnim kind);

// The increase of the phase, in radians per second of wall-clock time; 0 for a still backdrop.
double speed(ScreenAnim kind);
// The largest displacement of the mesh points, as a fraction of the backdrop's size.
double amplitude(ScreenAnim kind);
// The scale of the mesh about the backdrop's centre at a phase in radians.
double backdropScale(ScreenAnim kind, double phase);

} // namespace morrowleaf
