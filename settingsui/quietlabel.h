// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

class QLabel;
class QString;
class QWidget;

namespace morrowleaf {

// Labels in the palette's text colour at a lower opacity; they follow the palette.
enum class Emphasis { Secondary, Tertiary };

// Wraps plain text between words and, where a word is longer than a row, within it.
QLabel* makeQuietLabel(const QString& text, Emphasis emphasis, QWidget* parent);

// For one number in ASCII digits and its unit, at the right edge. The digits have equal
// widths in every face, so that they stand still while the number changes. In a window
// that is laid out from right to left it is at the left edge, with the digits of the face.
QLabel* makeNumberLabel(Emphasis emphasis, QWidget* parent);

} // namespace morrowleaf
