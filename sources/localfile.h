// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

namespace morrowleaf {

// The bytes of the regular file at `path`; nothing if there is none, it cannot
// be read or holds more than `limit` bytes. Pipes, devices, sockets and folders
// are refused at once. Blocks as long as the file system does; `stopped` is
// asked before every piece, and true ends the reading with nothing.
std::optional<QByteArray> readLocalFile(const QString& path, qsizetype limit,
                                        const std::function<bool()>& stopped);

} // namespace morrowleaf
