// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>
#include <stop_token>

namespace morrowleaf {

// Where a quotation is loaded from: either of the two is set.
struct SourceAddress {
    QString path; // absolute, of a local file
    QUrl url;     // of scheme http, https or data
};

// Reads a source as the user typed it. A trimmed text that begins with "/" is a
// path as it stands ("#", "?" and "%20" are part of the name); a "file" address
// names a local file too. std::nullopt for blanks, and for an address that is
// malformed, has no scheme or another one, or names no host.
[[nodiscard]] std::optional<SourceAddress> sourceAddress(const QString& source);

// The bytes that a source gives: a file's content, or the decoded body of an
// answer from the web. std::nullopt if it cannot be loaded, is longer than
// `limit` bytes, or `stop` is requested meanwhile. Blocks, as long as the
// kernel or the resolver does; call it on a thread that may be kept for ever.
[[nodiscard]] std::optional<QByteArray> loadSource(const QString& source, qsizetype limit,
                                                   const std::stop_token& stop);

// The same for the regular file at `path`. Pipes, devices, sockets and folders
// are refused at once.
[[nodiscard]] std::optional<QByteArray> readLocalFile(const QString& path, qsizetype limit,
                                                      const std::stop_token& stop);

} // namespace morrowleaf
