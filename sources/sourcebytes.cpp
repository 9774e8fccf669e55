// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/sourcebytes.h"

#include <QFile>

#include <array>

#include <zlib.h>

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

// The window bits with which zlib reads each format.
constexpr int gzipFormat = MAX_WBITS + 16;
constexpr int zlibFormat = MAX_WBITS;
constexpr int bareFormat = -MAX_WBITS; // deflated data without a frame, as some servers send

std::optional<QByteArray> decompress(QByteArray packed, int format, qsizetype limit) {
    z_stream stream{};
    if (inflateInit2(&stream, format) != Z_OK) {
        return std::nullopt;
    }
    stream.next_in = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_in = static_cast<uInt>(packed.size());
    QByteArray whole;
    std::array<char, 65536> piece{};
    int status = Z_OK;
    while (status == Z_OK && whole.size() <= limit) {
        stream.next_out = reinterpret_cast<Bytef*>(piece.data());
        stream.avail_out = static_cast<uInt>(piece.size());
        status = inflate(&stream, Z_NO_FLUSH);
        whole.append(piece.data(), static_cast<qsizetype>(piece.size() - stream.avail_out));
        // A gzip file may have several members.
        if (status == Z_STREAM_END && stream.avail_in > 0 && format == gzipFormat) {
            status = inflateReset(&stream);
        }
    }
    inflateEnd(&stream);
    return status == Z_STREAM_END && whole.size() <= limit ? std::optional(whole) : std::nullopt;
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

std::optional<QByteArray> readWithin(QFile& file, qsizetype limit) {
    // The size is only a hint: files of the kernel report 0, and a file may grow.
    if (file.size() > limit) {
        return std::nullopt;
    }
    QByteArray bytes;
    bytes.reserve(file.size());
    std::array<char, 65536> piece{};
    while (bytes.size() <= limit) {
        const qint64 got = file.read(piece.data(), piece.size());
        if (got <= 0) {
            return got == 0 ? std::optional(bytes) : std::nullopt;
        }
        bytes.append(piece.data(), got);
    }
    return std::nullopt;
}

std::optional<QByteArray> dataOf(const QUrl& url) {
    // "?" and "#" are part of the data in practice.
    const QByteArray whole = url.toString(QUrl::FullyEncoded | QUrl::RemoveScheme).toLatin1();
    const qsizetype comma = whole.indexOf(',');
    if (comma < 0) {
        return std::nullopt;
    }
    const QByteArray content = QByteArray::fromPercentEncoding(whole.sliced(comma + 1));
    const QByteArray kind = whole.first(comma).trimmed().toLower();
    if (!kind.endsWith(";base64")) {
        return content;
    }
    const auto decoded =
        QByteArray::fromBase64Encoding(content, QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? std::optional(*decoded) : std::nullopt;
}

std::optional<QByteArray> unpack(const QByteArray& body, const QByteArray& encoding,
                                 qsizetype limit) {
    const QByteArray name = encoding.trimmed().toLower();
    if (name.isEmpty() || name == "identity") {
        return body.size() <= limit ? std::optional(body) : std::nullopt;
    }
    if (name == "gzip" || name == "x-gzip") {
        return decompress(body, gzipFormat, limit);
    }
    if (name == "deflate") {
        const auto framed = decompress(body, zlibFormat, limit);
        return framed ? framed : decompress(body, bareFormat, limit);
    }
    return std::nullopt;
}

} // namespace morrowleaf
