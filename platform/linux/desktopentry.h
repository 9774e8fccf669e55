// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>

#include <optional>

namespace morrowleaf {

// The keys and unescaped values of the group "Desktop Entry" of the desktop file at
// `path`; std::nullopt if that is not a readable regular file with such a group. Reads
// only the first 64 KiB.
[[nodiscard]] std::optional<QMap<QString, QString>> readDesktopEntry(const QString& path);

// Escapes `text` as the value of a key of type string.
QString desktopString(const QString& text);

// Quotes and escapes the path of a program, without arguments, as the value of
// the key "Exec".
QString desktopCommand(const QString& program);

} // namespace morrowleaf
