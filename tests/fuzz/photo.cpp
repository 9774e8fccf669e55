// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "photos/photo.h"

#include <QBuffer>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

// Any file gives either nothing or exactly the pixels that were asked for.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto bytes =
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    QBuffer file;
    file.setData(bytes);
    file.open(QIODevice::ReadOnly);
    const QSize stored = morrowleaf::readPhotoSize(file);
    file.seek(0);
    constexpr QSize target(48, 27);
    const QImage image = morrowleaf::decodePhoto(file, target);
    if (!image.isNull() &&
        (stored.isEmpty() || image.size() != target || image.format() != QImage::Format_RGB32)) {
        std::abort();
    }
    return 0;
}
