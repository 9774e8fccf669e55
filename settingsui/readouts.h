// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace morrowleaf {

// How the values of sliders read: the number as printf writes it in the C locale, with its
// unit in the language of the user, here in English. There is room for four digits; a
// value with more reads as ">9999" or "<-999".

QString percentReadout(double value); // "%.0f%%" of the value times 100
QString plainReadout(double value);   // "%.2f"
QString secondsReadout(double value); // whole seconds, truncated, and "s"

} // namespace morrowleaf
