// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>

#include <optional>

namespace morrowleaf {

// The keys of the group "Desktop Entry" of a desktop file; nothing when it is
// no readable file of reasonable size with that group.
std::optional<QMap<QString, QString>> readDesktopEntry(const QString& path);

// A text as the value of a string key.
QString desktopString(const QString& text);

// A program without arguments as the value of the key "Exec".
QString desktopCommand(const QString& program);

} // namespace morrowleaf
