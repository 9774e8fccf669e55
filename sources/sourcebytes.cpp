// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/sourcebytes.h"

#include "platform/files.h"
#include "sources/webload.h"

#include <QFile>

#include <array>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

std::optional<SourceAddress> localFile(const QString& path) {
    if (!path.startsWith(u'/') || path.contains(QChar(0))) {
        return std::nullopt;
    }
    return SourceAddress{path, {}};
}

bool isThisMachine(const QString& host) {
    return host.isEmpty() || host == "localhost"_L1;
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
    if (scheme == "file"_L1 && isThisMachine(url.host())) {
        return localFile(url.path(QUrl::FullyDecoded));
    }
    const bool web = scheme == "http"_L1 || scheme == "https"_L1;
    if ((web && !url.host().isEmpty()) || scheme == "data"_L1) {
        return SourceAddress{{}, url};
    }
    return std::nullopt;
}

std::optional<QByteArray> readLocalFile(const QString& path, qsizetype limit,
                                        const StopToken& stop) {
    QFile file;
    // The size is only a hint: files of the kernel report 0, and a file may grow.
    if (!openRegularFile(file, path) || file.size() > limit) {
        return std::nullopt;
    }
    QByteArray bytes;
    bytes.reserve(file.size());
    std::array<char, 65536> piece{};
    while (!stop.isRequested()) {
        const qint64 got = file.read(piece.data(), piece.size());
        if (got == 0) {
            return bytes;
        }
        if (got < 0 || bytes.size() + got > limit) {
            return std::nullopt;
        }
        bytes.append(piece.data(), got);
    }
    return std::nullopt;
}

std::optional<QByteArray> loadSource(const QString& source, qsizetype limit,
                                     const StopToken& stop) {
    const std::optional<SourceAddress> address = sourceAddress(source);
    if (!address) {
        return std::nullopt;
    }
    return address->path.isEmpty() ? loadFromWeb(address->url, limit, stop)
                                   : readLocalFile(address->path, limit, stop);
}

} // namespace morrowleaf
