// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QRect>
#include <QSize>

class QIODevice;

namespace morrowleaf {

// Decoding, which trusts no file: for the program that reads photos and for tools, never
// for the program that the user sees. Both functions read a device that is open and at its
// start, and may take seconds and much memory.

inline constexpr qint64 photoMemoryLimit = Q_INT64_C(512) << 20; // bytes, of one picture

// The size of the picture in pixels, upright, according to its header. Empty unless it is
// a picture of a known format.
[[nodiscard]] QSize readPhotoSize(QIODevice& device);

// Decodes the picture so that it fills `target` (pixels): cropped about its centre,
// upright, in sRGB, opaque (Format_RGB32, over black). Null on failure.
[[nodiscard]] QImage decodePhoto(QIODevice& device, const QSize& target);

// The part of a stored picture, about its centre, with the aspect ratio of `target`
// (pixels).
QRect fillingCrop(const QSize& stored, const QSize& target);

} // namespace morrowleaf
