// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>

class QFile;

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

// The rest of an open file. std::nullopt if it cannot be read or is longer than `limit`
// bytes. Blocks as long as the file system does.
[[nodiscard]] std::optional<QByteArray> readWithin(QFile& file, qsizetype limit);

// What a data address contains. std::nullopt if it has no comma or broken base64.
[[nodiscard]] std::optional<QByteArray> dataOf(const QUrl& url);

// The content of a body that was sent with this "Content-Encoding". std::nullopt if the
// encoding is unknown, the body is broken or cut off, or the content is longer than
// `limit` bytes.
[[nodiscard]] std::optional<QByteArray> unpack(const QByteArray& body, const QByteArray& encoding,
                                               qsizetype limit);

} // namespace morrowleaf
