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

// The stored form of a case, and back; compared exactly, nothing when unknown.
QString rawValue(TextAnim kind);
QString rawValue(ScreenAnim kind);
std::optional<TextAnim> textAnimFromRawValue(const QString& raw);
std::optional<ScreenAnim> screenAnimFromRawValue(const QString& raw);

// How a reader of the settings takes a stored text: unknown is the first case.
TextAnim storedTextAnim(const QString& raw);
ScreenAnim storedScreenAnim(const QString& raw);

QString label(TextAnim kind);
QString label(ScreenAnim kind);

// Phase units a second of wall-clock time; 0 stands still.
double speed(ScreenAnim kind);
// Swing of the mesh points, as a fraction of the backdrop's size.
double amplitude(ScreenAnim kind);
// Factor on the mesh about the backdrop's centre at a phase.
double backdropScale(ScreenAnim kind, double phase);

} // namespace morrowleaf
