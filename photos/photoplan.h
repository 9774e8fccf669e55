// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImageIOHandler>
#include <QRect>
#include <QSize>

#include <optional>

class QImageReader;

namespace morrowleaf {

class PhotoDevice;

// What the beginning of a picture file tells.
struct PhotoHeader {
    QByteArray format; // "jpeg", "png", ...
    QSize size;        // pixels as stored, before orientation
    QImageIOHandler::Transformations orientation = QImageIOHandler::TransformationNone;
    qint64 bytesPerPixel = 4;  // of the decoded picture
    bool wholeInMemory = true; // decodes all of it before any of it can be used

    QSize uprightSize() const;
};

// Nothing for what is no picture, and for formats that are documents rather
// than pixels.
std::optional<PhotoHeader> readPhotoHeader(PhotoDevice& device, QImageReader& reader);

inline constexpr qint64 photoMemoryLimit = Q_INT64_C(512) << 20; // bytes

// The part of a stored picture, about its centre, that fills `target`.
QRect fillingCrop(const QSize& stored, const QSize& target);

// Estimate of the bytes that decoding needs so that the picture fills
// `target` (stored orientation).
qint64 decodeBytes(const PhotoHeader& header, const QSize& target);

} // namespace morrowleaf
