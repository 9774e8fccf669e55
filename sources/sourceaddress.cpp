// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/sourceaddress.h"

namespace morrowleaf {

namespace {

std::optional<SourceAddress> localFile(const QString& path) {
    if (!path.startsWith(u'/') || path.contains(QChar(0))) {
        return std::nullopt;
    }
    return SourceAddress{path, {}};
}

bool isThisMachine(const QString& host) {
    return host.isEmpty() || host == QLatin1StringView("localhost");
}

} // namespace

std::optional<SourceAddress> sourceAddress(const QString& source) {
    const QString typed = source.trimmed();
    if (typed.startsWith(u'/')) {
        return localFile(typed);
    }
    const QUrl url(typed, QUrl::TolerantMode);
    if (!url.isValid()) {
        return std::nullopt;
    }
    const QString scheme = url.scheme();
    if (scheme == QLatin1StringView("file") && isThisMachine(url.host())) {
        return localFile(url.path(QUrl::FullyDecoded));
    }
    const bool web = scheme == QLatin1StringView("http") || scheme == QLatin1StringView("https");
    if ((web && !url.host().isEmpty()) || scheme == QLatin1StringView("data")) {
        return SourceAddress{{}, url};
    }
    return std::nullopt;
}

} // namespace morrowleaf
