// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <optional>

namespace morrowleaf {

// Conversions of a stored value to what a reader asks for. All are total:
// whatever cannot be converted gives the zero value. None depends on the
// locale.

// Reals are truncated and clamped to the range; a text gives its leading
// decimal integer ("12.7 px" is 12); true is 1.
qint64 toInteger(const QJsonValue& value);

// Always finite. A text gives its leading decimal number ("1.5e2 px" is 150),
// clamped to the range.
double toReal(const QJsonValue& value);

// Numbers are true when not zero; of the texts, "yes", "true" and "1" in
// either case are, without blanks around them.
bool toFlag(const QJsonValue& value);

std::optional<QString> toText(const QJsonValue& value);

// Only a list whose every element is a text; the empty list is one.
std::optional<QStringList> toTextList(const QJsonValue& value);

} // namespace morrowleaf
