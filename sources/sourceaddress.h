// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QUrl>

#include <optional>

namespace morrowleaf {

// Where a quotation is loaded from: either of the two is set.
struct SourceAddress {
    QString path; // absolute, of a local file
    QUrl url;     // of scheme http, https or data
};

// What a user may have typed as a source. A trimmed text that begins with "/"
// is a path as it stands ("#", "?" and "%20" are part of the name); a "file"
// address names a local file too. Nothing for blanks, for an address that
// cannot be read, that has no scheme or another one, or that names no host.
std::optional<SourceAddress> sourceAddress(const QString& source);

} // namespace morrowleaf
