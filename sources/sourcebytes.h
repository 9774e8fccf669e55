// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/stoptoken.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>

namespace morrowleaf {

// The address of a source: exactly one of the two is set.
struct SourceAddress {
    QString path; // absolute, of a local file
    QUrl url;     // of scheme http, https or data
};

// Parses a source as the user typed it. A trimmed text that begins with "/" is a path,
// unchanged ("#", "?" and "%20" are part of the name); a "file" address also gives a
// local file. std::nullopt for a blank text and for an address that is malformed, has no
// or another scheme, or has no host.
[[nodiscard]] std::optional<SourceAddress> sourceAddress(const QString& source);

// The bytes of a source: a file's content, or the decoded body of a response from the
// web. std::nullopt if it cannot be loaded, is longer than `limit` bytes, or `stop` is
// requested meanwhile. May block without a time limit, in the kernel or the resolver;
// call it on a thread that may be abandoned.
[[nodiscard]] std::optional<QByteArray> loadSource(const QString& source, qsizetype limit,
                                                   const StopToken& stop);

// The content of the regular file at `path`, under the same conditions. Rejects pipes,
// devices, sockets and folders at once.
[[nodiscard]] std::optional<QByteArray> readLocalFile(const QString& path, qsizetype limit,
                                                      const StopToken& stop);

} // namespace morrowleaf
