// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QSize>
#include <QString>

#include <cstring>
#include <optional>

namespace morrowleaf {

// What crosses between the program and its reader of photos. A request is "WIDTH HEIGHT
// PATH". Its answer is the pixels of that size, row by row, as 32-bit numbers 0xffRRGGBB;
// if the size is 0 by 0, it is the size of the picture, as two 32-bit numbers.
struct PhotoRequest {
    QSize size; // pixels
    QString path;
};

inline constexpr int photoPixelBytes = 4;
inline constexpr qsizetype photoSizeBytes = 8;

inline QByteArray photoRequest(const QString& path, const QSize& size) {
    return QByteArray::number(size.width()) + ' ' + QByteArray::number(size.height()) + ' ' +
           path.toUtf8();
}

inline std::optional<PhotoRequest> parsePhotoRequest(const QByteArray& request) {
    const qsizetype first = request.indexOf(' ');
    const qsizetype second = request.indexOf(' ', first + 1);
    if (first < 0 || second < 0) {
        return std::nullopt;
    }
    return PhotoRequest{
        {request.first(first).toInt(), request.sliced(first + 1, second - first - 1).toInt()},
        QString::fromUtf8(request.sliced(second + 1))};
}

// Whether all pixels are as they must be: others would make holes in a window.
inline bool areOpaque(QByteArrayView pixels) {
    quint32 common = ~quint32{0};
    for (qsizetype at = 0; at + photoPixelBytes <= pixels.size(); at += photoPixelBytes) {
        quint32 pixel = 0;
        std::memcpy(&pixel, pixels.data() + at, photoPixelBytes);
        common &= pixel;
    }
    return common >= 0xff000000;
}

} // namespace morrowleaf
